// Join: from P and Q, writes P & Q; or, where both begin with the same universal quantifiers and
// the user wants it, merges them under one set: ALL(x):P and ALL(x):Q give ALL(x):[P & Q].
//
// First click: P. Second click: Q, which may be the same line. Both clicks take any active line.
#include <algorithm>
#include <string>

#include "document/PutStmt.h"
#include "expr/Parse.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {
namespace {

constexpr std::size_t LineLength = 51;  // from this length on the result is folded ahead of "&"

void FirstStatement(bool& firstClick) {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    Arg1Pending = line;
    if (!ParseOrReport()) return;
    KeepAsSecond();
    SetPrompt("Join: Click any active statement (2nd of 2)");
    firstClick = false;
}

// How many leading universal quantifiers with the same variables in the same order the two have.
// The last node is the root, the one ahead of it the second quantifier of a chain, and so on; the
// leading atoms are the quantified variables in order.
int CommonQuantifiers() {
    const int last = std::min(RootIndex(ParseTable), RootIndex(ParseTable2));
    int count = 0;
    for (int i = 1; i < last; ++i) {
        const ParseRec& a = NodeAt(ParseTable2, i);
        const ParseRec& b = NodeAt(ParseTable, i);
        const bool sameVariable = a.Name == b.Name && a.Rule == Node::Atom && b.Rule == Node::Atom;
        const auto quantifier = [&](const NodeList& nodes) {
            return NodeAt(nodes, RootIndex(nodes) - i + 1).Rule;
        };
        if (!sameVariable || quantifier(ParseTable) != Node::ALL ||
            quantifier(ParseTable2) != Node::ALL) {
            break;
        }
        ++count;
    }
    return count;
}

Answer AskForSingleQuantifier(int count) {
    const std::string end = count == 1 ? " under a single universal quantifer?"
                                       : " under a single set of universal quantifers?";
    return MsgBox(
        "Join lines " + std::to_string(Arg1Pending) + " and " + std::to_string(Arg2Pending) + end,
        "Join Rule Option", Buttons::YesNoCancel, Answer::No);
}

// Both texts begin with the same quantifiers, up to the count-th ":".
void MergeUnderQuantifiers(int count) {
    std::size_t colon = 0;
    for (int i = 0; i < count; ++i) colon = NewStmtText.find(':', colon) + 1;
    NewStmtText = NewStmtText.substr(0, colon) + "[[" + StmtText2.substr(colon) + "]&[" +
                  NewStmtText.substr(colon) + "]]";
}

void JoinSideBySide() {
    const std::string left = "[" + StmtText2 + "]";
    const std::string right = "[" + NewStmtText + "]";
    const bool fits = left.size() + right.size() < LineLength;
    NewStmtText = left + (fits ? " & " : "\r\n& ") + right;
}

void WriteJoined() {
    Parse();
    if (ParseError.empty()) return FinishRule(WriteStatement());
    Beep(ParseError);
    SetPrompt("JOIN: Inconsistent usage of same variable in lines " + std::to_string(Arg1Pending) +
              " and " + std::to_string(Arg2Pending) +
              ". Try letters a-j for bound variables, k-z for free variables.");
    FinishRule(false);
}

void SecondStatement(bool& firstClick) {
    firstClick = true;
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) {
        BeepNoActiveStmt();
        return SetPrompt(JoinPrompt);
    }
    Arg2Pending = line;
    if (!ParseOrReport()) return FinishRule(false);
    const int count = CommonQuantifiers();
    const Answer answer = count > 0 ? AskForSingleQuantifier(count) : Answer::No;
    if (answer == Answer::Cancel) return FinishRule(true);
    if (answer == Answer::Yes) {
        MergeUnderQuantifiers(count);
    } else {
        JoinSideBySide();
    }
    WriteJoined();
}

}  // namespace

void Join(bool& firstClick) {
    if (firstClick) {
        FirstStatement(firstClick);
    } else {
        SecondStatement(firstClick);
    }
}

}  // namespace tessaryn
