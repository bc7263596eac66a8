#include "output/PrintProof.h"

#include "document/Document.h"
#include "entry/EnteredNumber.h"
#include "mainwindow/Proof.h"
#include "output/Printing.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

// A number that no line can have is as good as 0.
int LineNumber(const std::string& entry) {
    return EnteredNumber(entry).value_or(0);
}

}  // namespace

PrintProofForm::PrintProofForm() : Form("PrintProof") {
    ChkAllStmts.Click = [this] {
        ShowRange();
        StatusLine.Caption.clear();
    };
    Text2.Change = [this] { StatusLine.Caption.clear(); };
    cmdContinue.Click = [this] { RunHandler([this] { Continue(); }, "Unable to print"); };
    cmdCancel.Click = [this] { Hide(); };
    DefaultButton = &cmdContinue;
}

void PrintProofForm::Activated() {
    openedFrom_ = LineNumber(Text1.Text);
    openedTo_ = LineNumber(Text2.Text);
    Caption = " Print Proof - Max. " + std::to_string(StmtCount) + " Lines";
    StatusLine.Caption.clear();
    ChkAllStmts.Value = openedFrom_ == 1 && openedTo_ == StmtCount;
    ShowRange();
}

// All statements, with the boxes out of reach, or the range that the form was opened with.
void PrintProofForm::ShowRange() {
    const bool all = ChkAllStmts.Value;
    for (Control* control : std::initializer_list<Control*>{&Label1, &Text1, &Label2, &Text2}) {
        control->Enabled = !all;
    }
    Text1.Text = std::to_string(all ? 1 : openedFrom_);
    Text2.Text = std::to_string(all ? StmtCount : openedTo_);
}

void PrintProofForm::Refuse(const std::string& message, const std::string& reason) {
    StatusLine.Caption = message;
    Beep(reason);
}

void PrintProofForm::Continue() {
    const int from = LineNumber(Text1.Text);
    const int to = LineNumber(Text2.Text);
    if (from < 1 || from > StmtCount || to < from || to > StmtCount) {
        return Refuse("Invalid range", "The lines to print must lie between 1 and " +
                                           std::to_string(StmtCount) +
                                           ", the first not behind the last.");
    }
    if (ProofText.empty()) return Refuse("PRINT: No text to print", "The proof is empty.");
    PrintStatements(from, to, [this](PrintResult result) {
        if (result == PrintResult::Failed) Refuse("Unable to print", PrintFault);
        if (result == PrintResult::Done) Hide();
    });
}

void PrintCommand() {
    if (ProofText.empty()) return SetPrompt("Print:  Nothing to print");
    int from = 1;
    int to = StmtCount;
    if (Proof.RTB.SelLength > 0) {
        const int first = ShownStmtAt(Proof.RTB.SelStart + 1);
        const int last = ShownStmtAt(Proof.RTB.SelStart + Proof.RTB.SelLength + 1);
        if (first > 0) from = first;
        if (last > 0 && last != first) to = last;
    }
    PrintProof.Text1.Text = std::to_string(from);
    PrintProof.Text2.Text = std::to_string(to);
    ShowModal(PrintProof);
}

}  // namespace tessaryn
