#include "entry/MyInputBox.h"

#include <utility>

#include "entry/EntryChecks.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "view/Display.h"

namespace tessaryn {
void ShowEntryFault(const std::string& message) {
    MyInputBox.Label2.Caption = message;
    MyInputBox.Text1.SetFocus();
}

void RefuseEntry(const std::string& message, const std::string& reason) {
    ShowEntryFault(message);
    Beep(reason.empty() ? message : reason);
}

void AskInBox(BoxQuestion question, EventHandler then) {
    MyInputBox.Caption = question.caption;
    MyInputBox.Label1.Caption = question.prompt;
    MyInputBox.Label2.Caption = question.hint;
    MyInputBox.Question = std::move(question);
    AskIn(MyInputBox, std::move(then));
}

MyInputBoxForm::MyInputBoxForm() : Form("MyInputBox") {
    Continue.Click = [this] {
        RunHandler([this] { ContinuePressed(); },
                   [](const char*) { RefuseEntry("Unable to process request"); });
    };
    Cancel.Click = [this] { Close(); };
    DefaultButton = &Continue;
}

void MyInputBoxForm::Activated() {
    Text1.Text = Question.preset;
    Text1.SelStart = 0;
    Text1.SelLength = static_cast<int>(Text1.Text.size());
    Text1.FontSize = StmtFontSize;
    Text1.SetFocus();
}

void MyInputBoxForm::Close() {
    RuleMode = 0;
    OperationCancelled = true;
    Hide();
}

void MyInputBoxForm::ContinuePressed() {
    const std::string fault = ForbiddenCharacter(Text1.Text);
    if (!fault.empty()) return RefuseEntry(fault);
    if (Question.accept != nullptr) Question.accept();
}

}  // namespace tessaryn
