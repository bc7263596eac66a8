// Reflex: writes x = x for a term that an active statement knows: a name that is free in it, or a
// compound term that it makes an element of a set.
//
// No click: the term is entered in TestParser.
#include <string>

#include "entry/TermChecks.h"
#include "entry/TestParser.h"
#include "expr/Expression.h"
#include "inference/Equality.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

std::string AcceptReflexTerm() {
    EnteredTerm term;
    if (std::string fault = CheckTerm({}, term); !fault.empty()) return fault;
    Arg1Pending = term.isName ? 0 : term.footing;
    Arg2Pending = 0;
    NewStmtText = Reflex(InHand).texts[0];
    WriteStatement();
    return "";
}

}  // namespace

void Reflexivity() {
    RuleMode = Rule::Reflex;
    SetPrompt("");
    AskForExpression(
        {"Reflex Rule: Enter free variable expression in active statement", AcceptReflexTerm},
        EndRule);
}

}  // namespace tessaryn
