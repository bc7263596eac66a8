// E Gen: from a statement about a term, writes that something exists: from P(f(x)), with v for
// f(x), EXIST(v):P(v). The occurrences that are replaced can be chosen, so that a+a=b gives
// EXIST(v):v+a=b as well.
//
// One click on a free variable, or a drag over a term of free variables, in an active statement;
// the dialogue Generalize does the rest.
#include <string>

#include "document/Document.h"
#include "entry/ActiveStmts.h"
#include "expr/NameList.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "mainwindow/RuleModes.h"
#include "rules/Generalize.h"
#include "rules/Rules.h"

namespace tessaryn {
namespace {

// Puts the selected text, widened to whole tokens, into NewStmtText. If there is none: beep.
bool TakeSelectedText(int& line) {
    int first = 0;
    int last = 0;
    SelectTokenRange(line, first, last);
    if (line != 0 && first != 0 && last != 0) {
        NewStmtText = Cut(NewStmtText, WrittenSpan(InHand, first, last));
        return true;
    }
    if (line == 0) {
        BeepNoActiveStmt();
    } else if (ParseError.empty()) {  // otherwise it has been reported
        BeepAtLine(line, "has no sign at this place: click a variable or select a term.");
    }
    return false;
}

// The name of the selected term that is not free in the statement; "" if all are.
std::string NameNotFree(int line) {
    const std::string& freeVars = StmtTable[line].FreeVars;
    for (std::size_t n = 1; n < ParseTable.size() && ParseTable[n].Rule == Node::Atom; ++n) {
        if (!HoldsName(freeVars, ParseTable[n].Name)) return ParseTable[n].Name;
    }
    return "";
}

bool IsTermOfFreeNames(int line) {
    if (!IsAlgebraic(Root(InHand).Rule)) {
        Beep("'" + NewStmtText +
             "' is no term: E Gen needs a variable or an algebraic expression.");
        return false;
    }
    const std::string name = NameNotFree(line);
    if (name.empty()) return true;
    BeepAtLine(line, "binds the variable " + name + ": E Gen needs a term of free variables.");
    return false;
}

}  // namespace

void ExistGenSelect() {
    int line = 0;
    if (!TakeSelectedText(line)) {
        Proof.RTB.SelLength = 0;
        return;
    }
    Parse();
    if (!ParseError.empty()) {
        Beep("'" + NewStmtText + "' is no expression: E Gen needs a whole term.");
        Proof.RTB.SelLength = 0;
        return;
    }
    if (!IsTermOfFreeNames(line)) return;
    GenExpression = NewStmtText;
    GenParseTable = ParseTable;
    Arg1Pending = line;
    Generalize.Caption =
        " Existential Generalization:  Line " + std::to_string(line) + ", '" + GenExpression + "'";
    SetPrompt("");
    AskIn(Generalize, [] {
        FinishRule(true);
        Proof.RTB.SelLength = 0;
    });
}

}  // namespace tessaryn
