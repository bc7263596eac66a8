// Reflex: writes x = x for a term that an active statement knows: a name that is free in it, or a
// compound term that it makes an element of a set.
//
// No click: the term is entered in TestParser.
#include <string>

#include "expr/Expression.h"
#include "inference/Equality.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "mainwindow/TermChecks.h"
#include "mainwindow/TestParser.h"
#include "rules/Rules.h"
#include "view/PutStmt.h"

namespace tessaryn {

void Reflexivity() {
    RuleMode = Rule::Reflex;
    SetPrompt("");
    TestParser.Caption = "Reflex Rule: Enter free variable expression in active statement";
    ShowModal(TestParser);
    RuleMode = 0;
}

std::string AcceptReflexTerm() {
    EnteredTerm term;
    if (const std::string fault = CheckTerm({}, term); !fault.empty()) return fault;
    Arg1Pending = term.isName ? 0 : term.footing;
    Arg2Pending = 0;
    NewStmtText = Reflex(InHand).texts[0];
    WriteStatement();
    return "";
}

}  // namespace tessaryn
