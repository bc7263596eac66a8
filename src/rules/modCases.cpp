// Cases: from P1 | P2 | ... and [P1 => Q] & [P2 => Q] & ..., writes Q.
//
// First click: the OR-statement. Second click: the AND-statement, its cases in the same order; a
// miss beeps and waits for another click.
#include "rules/modCases.h"

#include <string>
#include <utility>
#include <vector>

#include "document/PutStmt.h"
#include "expr/Parse.h"
#include "expr/Same.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {
namespace {

struct Case {
    std::string antecedent;
    std::string consequent;
};

void TakeOrStatement(int line, bool& firstClick) {
    Arg1Pending = line;
    Parse();
    if (!ParseError.empty()) return Beep(ParseError);
    if (Root(ParseTable).Rule != Node::LOr) {
        return BeepAtLine(line, "is no disjunction: Cases needs | as its outermost sign.");
    }
    CasesOr = {NewStmtText, TokenTable, ParseTable, "", 0};
    firstClick = false;
    SetPrompt("Cases: Click any active AND-statement of the form [P1=>Q] & [P2=>Q] & [P3=>Q] ...");
}

// From the last to the first. What stands in written brackets on the right stays together.
std::vector<std::string> Disjuncts() {
    const NodeTexts texts(CasesOr.text, CasesOr.tokens, CasesOr.nodes);
    std::vector<std::string> disjuncts;
    int node = RootIndex(CasesOr.nodes);
    while (NodeAt(CasesOr.nodes, node).Rule == Node::LOr) {
        disjuncts.push_back(texts[NodeAt(CasesOr.nodes, node).Ptr2]);
        node = NodeAt(CasesOr.nodes, node).Ptr1;
    }
    disjuncts.push_back(texts[node]);
    return disjuncts;
}

// The implications of a conjunction, from the last to the first; nothing if it is none.
std::vector<Case> CasesOf(const Expression& statement) {
    const NodeTexts texts(statement.text, statement.tokens, statement.nodes);
    std::vector<Case> cases;
    const auto add = [&](int node) {
        const ParseRec& implication = NodeAt(statement.nodes, node);
        if (implication.Rule != Node::Imply) return false;
        cases.push_back({texts[implication.Ptr1], texts[implication.Ptr2]});
        return true;
    };
    int node = RootIndex(statement.nodes);
    if (NodeAt(statement.nodes, node).Rule != Node::LAnd) return {};
    while (NodeAt(statement.nodes, node).Rule == Node::LAnd) {
        if (!add(NodeAt(statement.nodes, node).Ptr2)) return {};
        node = NodeAt(statement.nodes, node).Ptr1;
    }
    if (!add(node)) return {};
    return cases;
}

// What keeps the cases from being those of the OR-statement with one consequent; "" if nothing.
std::string FaultOf(const std::vector<Case>& cases) {
    if (cases.empty()) return "is no conjunction of implications: Cases needs [P=>Q] & [R=>Q] ...";
    for (const Case& c : cases) {
        if (SameExpressions(c.consequent, cases.front().consequent)) continue;
        return "has implications to different statements: Cases needs the same right side in all.";
    }
    const std::vector<std::string> disjuncts = Disjuncts();
    if (disjuncts.size() != cases.size()) {
        return "has " + std::to_string(cases.size()) + " cases, but line " +
               std::to_string(Arg1Pending) + " has " + std::to_string(disjuncts.size()) + ".";
    }
    for (std::size_t i = 0; i < cases.size(); ++i) {
        if (SameExpressions(disjuncts[i], cases[i].antecedent)) continue;
        return "does not have the cases of line " + std::to_string(Arg1Pending) +
               " in the same order: " + cases[i].antecedent + " stands for " + disjuncts[i] + ".";
    }
    return "";
}

void TakeAndStatement(int line) {
    Arg2Pending = line;
    if (!ParseOrReport()) return;
    const std::vector<Case> cases = CasesOf({NewStmtText, TokenTable, ParseTable, "", 0});
    if (const std::string fault = FaultOf(cases); !fault.empty()) return BeepAtLine(line, fault);
    NewStmtText = cases.front().consequent;
    FinishRule(WriteStatement());
}

}  // namespace

void Cases(bool& firstClick) {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    if (firstClick) {
        TakeOrStatement(line, firstClick);
    } else {
        TakeAndStatement(line);
    }
}

}  // namespace tessaryn
