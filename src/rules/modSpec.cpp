// Specify: takes the leading quantifier of a statement away.
//
//   E Spec: from EXIST(x):P, writes P with a name for x that is not in use yet
//   U Spec: from ALL(x):P, writes P with a term for x whose names are all in use
//
// One click, on any active statement that begins with a quantifier. Then the name is asked for in
// MyInputBox, the term in TestParser.
#include <string>
#include <vector>

#include "document/ActiveLines.h"
#include "entry/ActiveStmts.h"
#include "entry/ClickPatterns.h"
#include "entry/EntryChecks.h"
#include "entry/MyInputBox.h"
#include "entry/TermChecks.h"
#include "entry/TestParser.h"
#include "expr/NameList.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "inference/Quantifiers.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// --- E Spec

// The line that a name is in use on, 0 if none: the highest active one, or the first one behind the
// insertion point, where a closed block counts as well.
int LineThatUses(const std::string& name) {
    const auto uses = [&](int line) { return HoldsName(StmtTable[line].FreeVars, name); };
    const std::vector<int> lines = ActiveLines(InsertionLimit());
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        if (uses(*line)) return *line;
    }
    for (int line = InsertMode ? InsertLine : StmtCount + 1; line <= StmtCount; ++line) {
        if (uses(line)) return line;
    }
    return 0;
}

// The message of a name that can't be taken; "" if it can.
std::string CheckNewName(const std::string& name) {
    if (BindsInside(Second, name)) return "Inconsistent usage of free variable in this statement";
    const int line = LineThatUses(name);
    return line == 0 ? "" : "Free variable already used in statement " + std::to_string(line);
}

void ContinueESpec() {
    NewStmtText = MyInputBox.Text1.Text;
    Parse();
    if (!ParseError.empty() || ParseTable.size() != 2 || Root(InHand).Rule != Node::Atom) {
        return RefuseEntry("Invalid variable name",
                           "Enter one name that begins with a small letter or a digit.");
    }
    const std::string name = Root(InHand).Name;
    if (const std::string fault = CheckNewName(name); !fault.empty()) return RefuseEntry(fault);
    SpecName = name;
    NewStmtText = Specify(Second, InHand).texts[0];
    Parse();
    if (!ParseError.empty()) return RefuseEntry("PARSER ERROR: " + ParseError);
    if (!WriteStatement()) return ShowEntryFault(ParseError);
    RuleMode = 0;
    MyInputBox.Hide();
}

// --- U Spec

std::string AcceptUSpec() {
    EnteredTerm term;
    if (std::string fault = CheckTerm(TokenTable2, term); !fault.empty()) return fault;
    const bool restsOnFooting = !term.isName && BindsSomething(Second);
    NewStmtText = Specify(Second, InHand).texts[0];
    Arg2Pending = restsOnFooting ? term.footing : 0;
    Parse();
    if (!ParseError.empty()) {
        return "Invalid substitution for function name '" + BoundVarName + "'";
    }
    if (WriteStatement()) RuleMode = 0;
    return "";
}

}  // namespace

void Spec() {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    Arg1Pending = line;
    Arg2Pending = 0;
    Parse();
    if (!ParseError.empty()) return SetPrompt("PARSER ERROR: " + ParseError);
    const Outcome fit = SpecifyFrom(InHand);
    if (!fit.Applies()) return BeepRefusal(line, fit);
    const ParseRec& root = Root(InHand);
    RuleMode = root.Rule == Node::EXIST ? Rule::ESpec : Rule::USpec;
    SetPrompt("");
    BoundVarName = NodeAt(InHand, root.Ptr1).Name;
    Second = InHand;
    if (RuleMode == Rule::ESpec) {
        AskInBox({" E Spec Rule: Line " + std::to_string(line),
                  "Enter the name of a new free variable:", ContinueESpec,
                  "Suggestion: Use letters k-z for free variables"},
                 EndRule);
    } else {
        AskForExpression(
            {"U Spec Rule, Line " + std::to_string(line) +
                 ": Enter a free variable expression in active statement",
             AcceptUSpec,
             "Use only expressions with previously introduced free variables or constants"},
            EndRule);
    }
}

}  // namespace tessaryn
