#include "editing/Comment.h"

#include "document/Document.h"
#include "editing/CommentText.h"
#include "expr/Blanks.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

constexpr EditorStyle FreeText = {CommentBlue, true, " ", true};

// Blanks at both ends and line ends behind the text don't count.
std::string Trimmed(const std::string& text) {
    std::string trimmed = Trim(text);
    while (trimmed.size() >= 2 && trimmed.ends_with('\n')) trimmed.erase(trimmed.size() - 2);
    return trimmed;
}

}  // namespace

CommentMenus::CommentMenus(Form& form)
    : EditMenu(form),
      mnuNotation(form, "mnuNotation", "Notation"),
      optUQuantifier(form, "optUQuantifier", "Universal Quantifier       ALL([var]):"),
      optEQuantifier(form, "optEQuantifier", "Existential Quantifier     EXIST([var]):"),
      optSum(form, "optSum", "Summation  SUM([var],[start],[end]):"),
      optProd(form, "optProd", "Product       PROD([var],[start],[end]):") {
    Palette = {{&optUQuantifier, "ALL():"},
               {&optEQuantifier, "EXIST():"},
               {&optSum, "SUM(,,):"},
               {&optProd, "PROD(,,):"}};
    for (const Insertion& insertion : Palette) mnuNotation.Items.push_back(insertion.item);
    ControlKeys.insert(
        ControlKeys.end(),
        {{"A", &optUQuantifier}, {"E", &optEQuantifier}, {"S", &optSum}, {"P", &optProd}});
    form.MenuBar.push_back(&mnuNotation);
}

CommentForm::CommentForm() : Form("Comment"), Editor(CommentBox, Menus, Timer1, FreeText) {
    Editor.BindInsertion(cmdProve, "Prove: ");
    Editor.BindInsertion(cmdDefine, "Define: ");
    Editor.BindInsertion(cmdSufficient, "Sufficient: ");
    Editor.BindInsertion(cmdAsRequired, "As Required: ");
    Editor.BindButtons(Tools);
    Continue.Click = [this] { RunHandler([this] { ContinuePressed(); }); };
    Cancel.Click = [this] { Close(); };
}

void CommentForm::Activated() {
    Editor.Start();
    Caption = EditingIntro ? "Edit Introduction"
                           : "Edit User Comment, Line " + std::to_string(CommentLine);
    const std::string text = EditingIntro ? Introduction() : CommentOf(CommentLine);
    if (text.empty()) return;
    const int length = static_cast<int>(text.size());
    CommentBox.SetContent(text, {{0, length, {StatementFont, StmtFontSize, CommentBlue, false}}});
    ConvertAmpersand(CommentBox, 1, length);
    CommentBox.SelStart = 0;
}

void CommentForm::Close() {
    SetPrompt("");
    Hide();
}

void CommentForm::ContinuePressed() {
    const std::string text = Trimmed(ConvertEpsilon(CommentBox));
    EditingIntro ? SetIntroduction(text) : SetComment(CommentLine, text);
    ResetFonts();
    Proof.RTB.SelStart = 0;
    if (!EditingIntro) {
        Proof.RTB.SelStart = ViewerEndRule(StmtTable[CommentLine]);
    }
    SetPrompt("");
    Hide();
}

void EditIntroduction() {
    EditingIntro = true;
    ShowModal(Comment);
}

void EditComment(int line) {
    EditingIntro = false;
    CommentLine = line;
    ShowModal(Comment);
}

}  // namespace tessaryn
