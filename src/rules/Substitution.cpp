#include "rules/Substitution.h"

#include "document/PutStmt.h"
#include "document/Statement.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "rules/OccurrenceBox.h"
#include "rules/Occurrences.h"

namespace tessaryn {

SubstitutionForm::SubstitutionForm() : Form("Substitution") {
    const auto on = [this](EventHandler& event, void (SubstitutionForm::*handler)()) {
        event = [this, handler] { RunHandler([&] { (this->*handler)(); }); };
    };
    on(cmdSelectAll.Click, &SubstitutionForm::SelectAll);
    on(cmdReset.Click, &SubstitutionForm::Reset);
    on(cmdContinue.Click, &SubstitutionForm::Continue);
    on(cmdCancel.Click, &SubstitutionForm::Close);
    MakeClickable(RTB, [this] { RunHandler([this] { Pick(); }); });
    SaveRTB.Visible = false;
}

void SubstitutionForm::Activated() {
    Caption = "Substitute '" + SubstSource + "', Line " + std::to_string(Arg2Pending);
    cmdContinue.Enabled = cmdReset.Enabled = false;
    cmdSelectAll.Enabled = true;
    SetPrompt("");
    StatusLine.Caption = "Click on expression highlighted in blue, or Select ALL";
    ShowOccurrences(StmtText(Arg2Pending), SubstTargetTable, RTB, SaveRTB);
    RTB.SetFocus();
}

bool SubstitutionForm::KeyPressed(const KeyEvent& key) {
    if (key.key != Key::Esc) return false;
    Close();
    return true;
}

void SubstitutionForm::CloseRequested() {
    Close();
}

void SubstitutionForm::Close() {
    RuleMode = 0;
    Hide();
}

// What stands in the box counts, so that replacements accumulate, and a replaced place can be
// picked again if it holds the target.
bool SubstitutionForm::ReadStatement(Expression& statement) {
    cmdReset.Enabled = true;
    statement = ExpressionIn(RTB);
    if (!statement.error.empty()) StatusLine.Caption = "PARSER ERROR: " + statement.error;
    return statement.error.empty();
}

void SubstitutionForm::Pick() {
    StatusLine.Caption = "Click on expression highlighted in blue, or Select All";
    Expression statement;
    if (!ReadStatement(statement)) return;
    const auto span = OccurrenceAt(SubstTargetTable, statement, RTB.SelStart + 1);
    if (!span) return Beep("There is no " + SubstTarget + " at this place: click a blue one.");
    ReplaceSpans(RTB, {*span}, SubstSource, ReplacedByClick);
    RTB.SelStart = span->start - 1;
    cmdContinue.Enabled = true;
}

void SubstitutionForm::SelectAll() {
    StatusLine.Caption.clear();
    RTB.SetFocus();
    Expression statement;
    if (!ReadStatement(statement)) return;
    ReplaceSpans(RTB, AllOccurrences(SubstTargetTable, statement, Search::AheadOfLastToken),
                 SubstSource, ReplacedByAll);
    cmdContinue.Enabled = true;
    cmdSelectAll.Enabled = false;
}

void SubstitutionForm::Reset() {
    CopyContent(SaveRTB, RTB);
    cmdContinue.Enabled = cmdReset.Enabled = false;
    cmdSelectAll.Enabled = true;
    StatusLine.Caption = "Click on expression highlighted in blue, or Select All";
    RTB.SetFocus();
}

void SubstitutionForm::Continue() {
    NewStmtText = ExpressionIn(RTB).text;
    Parse();
    if (!ParseError.empty()) {
        StatusLine.Caption = "PARSER ERROR: " + ParseError;
        RTB.SetFocus();
        return Beep(ParseError);
    }
    if (!WriteStatement()) {
        StatusLine.Caption = ParseError;
        return;
    }
    Close();
}

}  // namespace tessaryn
