#include "rules/OccurrenceForm.h"

#include <utility>

#include "document/Document.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "rules/OccurrenceBox.h"
#include "view/PutStmt.h"

namespace tessaryn {

OccurrenceForm::OccurrenceForm(std::string name, std::string label)
    : Form(std::move(name)), StatementTextLabel(*this, "StatementTextLabel", std::move(label)) {
    const auto on = [this](EventHandler& event, void (OccurrenceForm::*handler)()) {
        event = [this, handler] { RunHandler([&] { (this->*handler)(); }); };
    };
    on(cmdSelectAll.Click, &OccurrenceForm::SelectAll);
    on(cmdReset.Click, &OccurrenceForm::Reset);
    on(cmdContinue.Click, &OccurrenceForm::Continue);
    on(cmdCancel.Click, &OccurrenceForm::Close);
    on(RTB.Click, &OccurrenceForm::Pick);
    RTB.KeyDown = [this](const KeyEvent& key) {  // Enter clicks at the caret
        if (key.key == Key::Enter) RTB.Click();
        return key.key == Key::Enter;
    };
    RTB.ReadOnly = true;
    SaveRTB.Visible = false;
}

void OccurrenceForm::ShowStatement(int line, const NodeList& term, const std::string& termText) {
    term_ = term;
    termText_ = termText;
    ShowOccurrences(StmtText(line), term_, RTB, SaveRTB);
}

bool OccurrenceForm::ReadStatement(Expression& statement) {
    cmdReset.Enabled = true;
    statement = ExpressionIn(RTB);
    if (!statement.error.empty()) StatusLine.Caption = "PARSER ERROR: " + statement.error;
    return statement.error.empty();
}

void OccurrenceForm::ReplaceAtCaret(const Expression& statement, const std::string& replacement) {
    const auto span = OccurrenceAt(term_, statement, RTB.SelStart + 1);
    if (!span) return Beep("There is no " + termText_ + " at this place: click a blue one.");
    ReplaceSpans(RTB, {*span}, replacement, ReplacedByClick);
    RTB.SelStart = span->start - 1;
    cmdContinue.Enabled = true;
}

void OccurrenceForm::ReplaceAll(const Expression& statement, Search search,
                                const std::string& replacement) {
    ReplaceSpans(RTB, AllOccurrences(term_, statement, search), replacement, ReplacedByAll);
    cmdContinue.Enabled = true;
    cmdSelectAll.Enabled = false;
    StatusLine.Caption.clear();
    RTB.SetFocus();
}

void OccurrenceForm::Refuse(const std::string& message, Control& focus) {
    StatusLine.Caption = message;
    Beep(message);
    focus.SetFocus();
}

bool OccurrenceForm::ParseOrRefuse(const std::string& text) {
    NewStmtText = text;
    Parse();
    if (!ParseError.empty()) Refuse("PARSER ERROR: " + ParseError, RTB);
    return ParseError.empty();
}

void OccurrenceForm::WriteAndClose() {
    if (WriteStatement()) {
        Close();
    } else {
        StatusLine.Caption = ParseError;
    }
}

}  // namespace tessaryn
