// Or Not: writes P | ~P for a formula P whose free names are all in use.
//
// No click: the formula is entered in TestParser.
#include "entry/ClickPatterns.h"
#include "inference/Connectives.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"

namespace tessaryn {

void OrNotCommand() {
    RuleMode = Rule::OrNot;
    Arg1Pending = Arg2Pending = 0;
    AskForOperand("Arbitrary OR-NOT Rule: Enter a logical expression",
                  [](const Expression&, const Expression& entered) { return OrNot(entered); });
}

}  // namespace tessaryn
