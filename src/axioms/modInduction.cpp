// Induction Shortcut: writes the principle of induction for a property P of the natural numbers n,
//
//   P(1) & ALL(k):[k @ n & P(k) => P(k+1)] => ALL(k):[k @ n => P(k)]
//
// where an axiom or an open premise has brought in n and 1. No click: k and P are entered in
// InductionForm.
#include "axioms/Axioms.h"
#include "axioms/InductionForm.h"
#include "axioms/NamesInUse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "mainwindow/RuleModes.h"

namespace tessaryn {

void InductionShortcut() {
    RuleMode = Rule::Induction;
    SetPrompt("");
    if (!AxiomsOrPremisesHold({"n", "1"})) {
        SetPrompt(
            "Induction Shortcut: No reference to n or 1 in a previous axiom or active premise");
        Beep("An axiom or an open premise must speak of n and of 1 first: see Number Axioms.");
        return FinishRule(false);
    }
    Arg1Pending = Arg2Pending = 0;
    AskIn(InductionForm, [] { FinishRule(true); });
}

}  // namespace tessaryn
