#include "entry/TestParser.h"

#include <utility>

#include "entry/EntryChecks.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "platform/Platform.h"

namespace tessaryn {
void AskForExpression(ExpressionQuestion question, EventHandler then) {
    TestParser.Caption = question.caption;
    TestParser.Question = std::move(question);
    AskIn(TestParser, std::move(then));
}

TestParserForm::TestParserForm() : Form("TestParser") {
    const auto on = [this](Button& button, void (TestParserForm::*handler)()) {
        button.Click = [this, handler] { RunHandler([&] { (this->*handler)(); }); };
    };
    on(cmdContinue, &TestParserForm::Continue);
    on(cmdCancel, &TestParserForm::Close);
    on(cmdParse, &TestParserForm::CheckEntry);
    cmdParse.Visible = false;
    Editor.BindButtons(Tools);
}

void TestParserForm::Activated() {
    Editor.Start();
    StatusLine.Caption = Question.hint;
}

void TestParserForm::Close() {
    OperationCancelled = true;
    Hide();
    RuleMode = 0;
    SetPrompt("");
}

void TestParserForm::Continue() {
    RunHandler([this] { CheckEntry(); },
               [this](const char*) { Refuse("Unable to process request"); });
    if (ParseError.empty()) {
        Hide();
        SetPrompt("");
        return;
    }
    ParseError.clear();
    RTB.SetFocus();
    RTB.SelLength = 0;
}

void TestParserForm::Refuse(const std::string& message) {
    ParseError = message;
    StatusLine.Caption = message;
    Beep(message);
}

void TestParserForm::CheckEntry() {
    RTB.SetFocus();
    if (const std::string fault = ForbiddenCharacter(RTB.GetText()); !fault.empty()) {
        return Refuse(fault);
    }
    Editor.ClearMarks();
    NewStmtText = Editor.Expression();
    Parse();
    StatusLine.Caption = ParseError;
    if (!ParseError.empty()) {
        Beep(ParseError);
        Editor.MarkParseError();
        return;
    }
    if (const std::string fault = ForbiddenName(); !fault.empty()) return Refuse(fault);
    Accept();
    RTB.SelLength = 0;
}

void TestParserForm::Accept() {
    if (!Question.accept) return;
    if (const std::string fault = Question.accept(); !fault.empty()) Refuse(fault);
    StatusLine.Caption = ParseError;  // a failed writing has beeped by itself
}

}  // namespace tessaryn
