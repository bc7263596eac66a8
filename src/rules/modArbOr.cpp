// Arb Or: from P, writes P | Q or, on the left, Q | P, with any Q whose free variables are in use.
//
// One click, on any active statement. Then Q is asked for in TestParser.
#include <string>

#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "rules/ArbitraryOperand.h"
#include "rules/Rules.h"

namespace tessaryn {

void ArbOrLeftCommand() {
    ArbOrLeft = true;
    StartClickRule(Rule::ArbOr, "Arb OR (Left):  Click any active statement");
}

void ArbOrRightCommand() {
    ArbOrLeft = false;
    StartClickRule(Rule::ArbOr, "Arb OR (Right):  Click any active statement");
}

void ArbOr() {
    const char* side = ArbOrLeft ? "Left" : "Right";
    if (!AskForOperand("Arbitrary OR (Insert " + std::string(side) + ") Rule, Line ")) {
        RuleMode = 0;
    }
}

std::string AcceptArbOr() {
    if (const std::string fault = CheckOperand(); !fault.empty()) return fault;
    const std::string& left = ArbOrLeft ? NewStmtText : StmtText2;
    const std::string& right = ArbOrLeft ? StmtText2 : NewStmtText;
    return WriteWithOperand("[" + left + "]|[" + right + "]");
}

}  // namespace tessaryn
