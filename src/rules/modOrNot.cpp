// Or Not: writes P | ~P, with any P whose free variables are in use.
//
// No click. P is asked for in TestParser.
#include <string>

#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "mainwindow/TestParser.h"
#include "rules/ArbitraryOperand.h"
#include "rules/Rules.h"

namespace tessaryn {

void OrNot() {
    RuleMode = Rule::OrNot;
    SetPrompt("");
    TestParser.Caption = "Arbitrary OR-NOT Rule: Enter a logical expression";
    Arg1Pending = Arg2Pending = 0;
    ShowModal(TestParser);
    RuleMode = 0;
}

std::string AcceptOrNot() {
    if (const std::string fault = CheckOperand(); !fault.empty()) return fault;
    return WriteWithOperand("[" + NewStmtText + "]|~[" + NewStmtText + "]");
}

}  // namespace tessaryn
