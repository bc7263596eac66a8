#include "output/Tips.h"

#include <array>
#include <chrono>
#include <random>

#include "mainwindow/Proof.h"
#include "output/Settings.h"
#include "platform/Platform.h"

namespace tessaryn {
namespace {

const std::array<std::string, 15> TipTable = {
    "",  // the table starts at 1
    "A typical proof cycle consists of a premise followed by one or more inferences, then a "
    "conclusion and a generalization. You will typically have several such proof cycles "
    "within a proof, some nested within others.",
    "Use an Introduction to keep your overall objective visible at all times.",
    "Use the Conclusion tag (indicated by triangle symbol), as well as highlighting to "
    "minimize the number of statements visible at any one time. Saves confusion. Improves "
    "response time.",
    "Establish sufficient conditions for each proof objective as soon as possible.",
    "Use \"Prove\" and \"Sufficient\" headings to make your objectives clear. Search on "
    "these headings if you get \"lost.\"",
    "Use \"As Required\" headings to indicate intermediate results that will be used later.",
    "Use comments to ensure that the reader will understand what you are doing and why "
    "without having to look ahead. Helps keep YOU on track, too.",
    "If there are a fixed number of cases to consider in your proof, try using the Case Rule "
    "on the Logic Menu.",
    "To prove a statement is false, trying supposing it is true in a premise. Then derive a "
    "contradiction from it. Invoking the Conclusion Rule will then give the required result.",
    "To prove the existence of a set or function, try using the Sets menu to construct it "
    "from sets given your initial premise(s). Then show that your construction has the "
    "required properties.",
    "To prove an OR-statement, it is sufficient to prove that either side is true. Use the "
    "Arbitrary OR Rule on the Logic menu to fill in the missing side.",
    "Try to use the letters a-j for bound variables. Use numbers and the letters k-z for "
    "free variables. Prevents subsequent conflicts of variable usage. Saves annoying "
    "rewrites. Variables may be of any length.",
    "Free variables introduced by Existential Specification should be introduced as soon as "
    "possible to avoid creating unintended dependencies among variables.",
    "To prove an implication, try starting with a premise corresponding to the left-hand "
    "side (the antecedent). Then prove the right-hand side (the consequent) and invoke the "
    "Conclusion Rule.",
};

double RandomFromClock() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    std::minstd_rand generator(static_cast<std::minstd_rand::result_type>(ticks));
    return std::uniform_real_distribution<double>(0, 1)(generator);
}

}  // namespace

const std::string& TipFor(double random) {
    return TipTable[static_cast<std::size_t>(random * 14) + 1];
}

TipsForm::TipsForm() : Form("Tips", "Proof Tip of the Day") {
    Check1.Click = [this] { RunHandler([this] { KeepWish(); }); };
    cmdClose.Click = [this] { Hide(); };
    DefaultButton = &cmdClose;
}

void TipsForm::KeepWish() {
    const std::string fault = SaveTipWish(Check1.Value);
    if (!fault.empty()) Beep("The choice can't be saved. " + fault);
}

void TipsForm::Activated() {
    TipText.Caption = TipFor(RandomFromClock());
    Check1.Value = TipWanted();
    cmdClose.SetFocus();
}

}  // namespace tessaryn
