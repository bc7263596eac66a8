#include "view/EditCaption.h"

#include "document/Document.h"
#include "document/ProofFile.h"
#include "expr/Blanks.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

// A caption is one line, whatever has been pasted.
std::string OnOneLine(std::string text) {
    for (char& c : text) {
        if (c == '\r' || c == '\n') c = ' ';
    }
    return Trim(text);
}

}  // namespace

EditCaptionForm::EditCaptionForm() : Form("EditCaption", "Edit Caption") {
    RTB.MultiLine = false;
    DefaultButton = &Continue;
    Continue.Click = [this] { RunHandler([this] { ContinuePressed(); }); };
    Cancel.Click = [this] { Hide(); };
    Clear.Click = [this] { Show(""); };
    RTB.KeyDown = [this](const KeyEvent& key) {
        if (key.key == Key::Enter) {
            Continue.Click();
            return true;
        }
        return key.ctrl && key.text == "R";
    };
}

void EditCaptionForm::Activated() {
    Show(ProofCaption);
}

void EditCaptionForm::Show(const std::string& text) {
    RTB.TextRTF = "";
    RTB.SelFontName = StatementFont;
    RTB.SelFontSize = StmtFontSize;
    RTB.SelColor = Black;
    RTB.SelBold = false;
    RTB.SelText = text;
    RTB.SelStart = 0;
    RTB.SetFocus();
}

void EditCaptionForm::ContinuePressed() {
    ProofCaption = OnOneLine(RTB.GetText());
    Proof.Caption = ProofTitle();
    Hide();
}

void EditProofCaption() {
    ShowModal(EditCaption);
}

}  // namespace tessaryn
