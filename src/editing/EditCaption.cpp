#include "editing/EditCaption.h"

#include <algorithm>

#include "document/Document.h"
#include "expr/Blanks.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/TextExchange.h"

namespace tessaryn {
namespace {

// A caption is one line, whatever has come in.
std::string OnOneLine(std::string text) {
    std::erase(text, '\r');
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

}  // namespace

EditCaptionForm::EditCaptionForm() : Form("EditCaption", "Edit Caption") {
    RTB.MultiLine = false;
    DefaultButton = &Continue;
    Continue.Click = [this] { RunHandler([this] { ContinuePressed(); }); };
    Cancel.Click = [this] { Hide(); };
    Clear.Click = [this] { Fill(""); };
    RTB.KeyDown = [this](const KeyEvent& key) {
        if (key.key == Key::Enter) {
            Continue.Click();
            return true;
        }
        if (WithElementSign(key.text) != key.text) {
            RTB.SelText = "@";
            return true;
        }
        return key.ctrl && key.text == "R";
    };
    // As in the title, which has no fonts, the element sign is "@" here.
    RTB.Pasted = [this](const Clip& content) {
        RunHandler([&] {
            LoadWorkArea(content);
            RTB.SelText = OnOneLine(ConvertEpsilon(WorkArea.RTB));
        });
    };
}

void EditCaptionForm::Activated() {
    Fill(ProofCaption);
}

void EditCaptionForm::Fill(const std::string& text) {
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
    ProofCaption = Trim(OnOneLine(RTB.GetText()));
    Proof.Caption = ProofTitle();
    Hide();
}

void EditProofCaption() {
    ShowModal(EditCaption);
}

}  // namespace tessaryn
