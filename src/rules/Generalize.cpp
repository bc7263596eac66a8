#include "rules/Generalize.h"

#include <algorithm>

#include "document/PutStmt.h"
#include "document/Statement.h"
#include "expr/Parse.h"
#include "mainwindow/EntryChecks.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/OccurrenceBox.h"
#include "rules/Occurrences.h"
#include "view/Display.h"

namespace tessaryn {

GeneralizeForm::GeneralizeForm() : Form("Generalize") {
    const auto on = [this](EventHandler& event, void (GeneralizeForm::*handler)()) {
        event = [this, handler] { RunHandler([&] { (this->*handler)(); }); };
    };
    on(BoundVarTextBox.Change, &GeneralizeForm::BoundVarChanged);
    on(cmdSelectAll.Click, &GeneralizeForm::SelectAll);
    on(cmdReset.Click, &GeneralizeForm::Reset);
    on(cmdContinue.Click, &GeneralizeForm::Continue);
    on(cmdCancel.Click, &GeneralizeForm::Close);
    MakeClickable(RTB, [this] { RunHandler([this] { Pick(); }); });
    SaveRTB.Visible = false;
}

void GeneralizeForm::Activated() {
    AskForBoundVar();
    StatementTextLabel.Visible = false;
    BoundVarTextBox.FontSize = StmtFontSize;
    ShowOccurrences(StmtText(Arg1Pending), GenParseTable, RTB, SaveRTB);
}

bool GeneralizeForm::KeyPressed(const KeyEvent& key) {
    if (key.key == Key::Esc) Close();
    return key.key == Key::Esc || (key.ctrl && ActiveControl == &RTB);
}

void GeneralizeForm::CloseRequested() {
    Close();
}

void GeneralizeForm::Close() {
    FinishRule(true);
    Hide();
}

void GeneralizeForm::Refuse(const std::string& message, Control& focus) {
    StatusLine.Caption = message;
    Beep(message);
    focus.SetFocus();
}

// --- the bound variable

void GeneralizeForm::AskForBoundVar() {
    BoundVar.clear();
    BoundVarTextBox.Text.clear();
    BoundVarTextBox.SelStart = BoundVarTextBox.SelLength = 0;
    BoundVarTextBox.Visible = BoundVarLabel.Visible = true;
    cmdContinue.Enabled = cmdReset.Enabled = cmdSelectAll.Enabled = false;
    StatusLine.Caption = "Enter bound variable";
    BoundVarTextBox.SetFocus();
}

void GeneralizeForm::BoundVarChanged() {
    StatementTextLabel.Visible = true;
    cmdSelectAll.Enabled = true;
    StatusLine.Caption = "Click on highlighted (blue) expression, or Select All";
}

// The term's own name may serve as the bound variable, no other name of the statement may.
bool GeneralizeForm::AcceptBoundVar() {
    if (!BoundVar.empty()) return true;
    const auto refuse = [this](const std::string& message) {
        Refuse(message, BoundVarTextBox);
        return false;
    };
    const std::string fault = ForbiddenCharacter(BoundVarTextBox.Text);
    if (!fault.empty()) return refuse(fault);
    const Expression entry = ParseExpression(BoundVarTextBox.Text);
    const bool isName = entry.nodes.size() == 2 && Root(entry.nodes).Rule == Node::Atom;
    if (!isName) return refuse("Invalid bound variable, syntax error");
    const std::string& name = Root(entry.nodes).Name;

    const Expression statement = ExpressionIn(RTB);
    if (!statement.error.empty()) return refuse("PARSER ERROR: " + statement.error);
    const bool occurs = std::any_of(statement.tokens.begin(), statement.tokens.end(),
                                    [&](const TokenRec& token) { return token.Token == name; });
    if (occurs && name != GenExpression) {
        return refuse("Bound variable already occurs in statement");
    }
    BoundVar = name;
    BoundVarTextBox.Visible = BoundVarLabel.Visible = false;
    RTB.SetFocus();
    return true;
}

// --- picking

// What stands in the box counts, so that earlier replacements do.
bool GeneralizeForm::StartPicking(Expression& statement) {
    StatusLine.Caption = "Click on highlighted (blue) expression";
    if (!AcceptBoundVar()) return false;
    cmdReset.Enabled = true;
    statement = ExpressionIn(RTB);
    if (statement.error.empty()) return true;
    StatusLine.Caption = "PARSER ERROR: " + statement.error;
    return false;
}

void GeneralizeForm::Pick() {
    if (!StatementTextLabel.Visible) {
        return Beep(BoundVar.empty() ? "Enter the bound variable first."
                                     : "All occurrences have been replaced: press Continue, or "
                                       "Reset to start anew.");
    }
    Expression statement;
    if (!StartPicking(statement)) return;
    const auto span = OccurrenceAt(GenParseTable, statement, RTB.SelStart + 1);
    if (!span) return Beep("There is no " + GenExpression + " at this place: click a blue one.");
    ReplaceSpans(RTB, {*span}, BoundVar, ReplacedByClick);
    RTB.SelStart = span->start - 1;
    cmdContinue.Enabled = true;
}

void GeneralizeForm::SelectAll() {
    Expression statement;
    if (!StartPicking(statement)) return;
    ReplaceSpans(RTB, AllOccurrences(GenParseTable, statement, Search::OutermostOnly), BoundVar,
                 ReplacedByAll);
    cmdContinue.Enabled = true;
    cmdSelectAll.Enabled = false;
    StatementTextLabel.Visible = false;
    StatusLine.Caption.clear();
    RTB.SetFocus();
}

void GeneralizeForm::Reset() {
    CopyContent(SaveRTB, RTB);
    AskForBoundVar();
}

// --- the statement

void GeneralizeForm::Continue() {
    const auto parse = [this](const std::string& text) {
        NewStmtText = text;
        Parse();
        if (!ParseError.empty()) Refuse("PARSER ERROR: " + ParseError, RTB);
        return ParseError.empty();
    };
    if (!parse(ExpressionIn(RTB).text)) return;
    if (!parse("EXIST(" + BoundVar + "):[" + NewStmtText + "]")) return;
    Arg2Pending = 0;
    if (!WriteStatement()) {
        StatusLine.Caption = ParseError;
        return;
    }
    Close();
}

}  // namespace tessaryn
