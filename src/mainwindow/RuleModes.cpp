#include "mainwindow/RuleModes.h"

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"

namespace tessaryn {

void AwaitClick(int ruleMode, const std::string& prompt) {
    RuleMode = ruleMode;
    SetPrompt(prompt);
    if (Proof.RTB.SelLength > 0) Proof.RTB.SelLength = 0;
    Proof.RTB.SetFocus();
}

void EndRule() {
    RuleMode = 0;
}

void FinishRule(bool written) {
    RuleMode = 0;
    if (written) SetPrompt("");
}

}  // namespace tessaryn
