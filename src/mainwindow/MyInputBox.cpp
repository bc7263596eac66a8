#include "mainwindow/MyInputBox.h"

#include <exception>

#include "axioms/Axioms.h"
#include "expr/Expression.h"
#include "mainwindow/EntryChecks.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

// What Continue does in each mode once the entry holds no "#".
struct InputMode {
    int ruleMode;
    void (*accept)();
    bool preset = false;  // the opening rule fills Text1
};

const InputMode InputModes[] = {
    {Rule::CartProd, ContinueAxiomScheme},
    {Rule::PowerSet, ContinueAxiomScheme},
    {Rule::SetEquality, ContinueAxiomScheme},
    {Rule::NtupleEquality, ContinueAxiomScheme},
    {Rule::Function, ContinueAxiomScheme},
    {Rule::FnSpace, ContinueAxiomScheme},
    {Rule::FnEquality, ContinueAxiomScheme},
    {Rule::Conclusion, ContinueConclusion, true},
    {Rule::ESpec, ContinueESpec},
    {Rule::Rename, ContinueRename, true},
    {Rule::Reorder, ContinueReorder, true},
};

const InputMode* FindMode(int ruleMode) {
    for (const InputMode& mode : InputModes) {
        if (mode.ruleMode == ruleMode) return &mode;
    }
    return nullptr;
}

}  // namespace

void ShowEntryFault(const std::string& message) {
    MyInputBox.Label2.Caption = message;
    MyInputBox.Text1.SetFocus();
}

void RefuseEntry(const std::string& message, const std::string& reason) {
    ShowEntryFault(message);
    Beep(reason.empty() ? message : reason);
}

MyInputBoxForm::MyInputBoxForm() : Form("MyInputBox") {
    Continue.Click = [this] { ContinuePressed(); };
    Cancel.Click = [this] { Close(); };
    DefaultButton = &Continue;
}

void MyInputBoxForm::Activated() {
    const InputMode* mode = FindMode(RuleMode);
    if (mode == nullptr || !mode->preset) Text1.Text.clear();
    Text1.SelStart = 0;
    Text1.SelLength = static_cast<int>(Text1.Text.size());
    Text1.FontSize = StmtFontSize;
    Text1.SetFocus();
}

void MyInputBoxForm::Close() {
    RuleMode = 0;
    ParseError = "Cancelled";
    Hide();
}

void MyInputBoxForm::ContinuePressed() {
    try {
        const std::string fault = ForbiddenCharacter(Text1.Text);
        if (!fault.empty()) return RefuseEntry(fault);
        if (const InputMode* mode = FindMode(RuleMode)) mode->accept();
    } catch (const std::exception&) {
        RefuseEntry("Unable to process request");
    }
}

}  // namespace tessaryn
