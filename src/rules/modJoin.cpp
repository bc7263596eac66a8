// Join: from P and Q, writes P & Q; or, where both begin with the same universal quantifiers and
// the user wants it, merges them under one set: ALL(x):P and ALL(x):Q give ALL(x):[P & Q].
//
// First click: P. Second click: Q, which may be the same line. Both clicks take any active line.
#include <string>

#include "entry/ActiveStmts.h"
#include "entry/ClickPatterns.h"
#include "expr/Parse.h"
#include "inference/Connectives.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

void FirstStatement(bool& firstClick) {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    Arg1Pending = line;
    if (!ParseOrReport()) return;
    Second = InHand;
    SetPrompt("Join: Click any active statement (2nd of 2)");
    firstClick = false;
}

Message SingleQuantifierQuestion(int count) {
    const std::string end = count == 1 ? " under a single universal quantifer?"
                                       : " under a single set of universal quantifers?";
    return {
        "Join lines " + std::to_string(Arg1Pending) + " and " + std::to_string(Arg2Pending) + end,
        "Join Rule Option", Buttons::YesNoCancel, Answer::No};
}

void WriteJoined(const Outcome& joined) {
    NewStmtText = joined.texts[0];
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
    const int count = CommonQuantifiers(Second, InHand);
    if (count == 0) return WriteJoined(Join(Second, InHand));
    Ask(SingleQuantifierQuestion(count), [count](Answer answer) {
        if (answer == Answer::Cancel) return FinishRule(true);
        WriteJoined(answer == Answer::Yes ? JoinUnderQuantifiers(Second, InHand, count)
                                          : Join(Second, InHand));
    });
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
