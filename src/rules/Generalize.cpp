#include "rules/Generalize.h"

#include <algorithm>

#include "entry/EntryChecks.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "inference/Quantifiers.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/OccurrenceBox.h"
#include "view/Display.h"

namespace tessaryn {

GeneralizeForm::GeneralizeForm() : OccurrenceForm("Generalize", "Statement  Text:") {
    BoundVarTextBox.Change = [this] { RunHandler([this] { BoundVarChanged(); }); };
}

void GeneralizeForm::Activated() {
    AskForBoundVar();
    StatementTextLabel.Visible = false;
    BoundVarTextBox.FontSize = StmtFontSize;
    ShowStatement(Arg1Pending, GenParseTable, GenExpression);
}

bool GeneralizeForm::KeyPressed(const KeyEvent& key) {
    return Form::KeyPressed(key) || (key.ctrl && ActiveControl == &RTB);
}

void GeneralizeForm::Close() {
    FinishRule(true);
    Hide();
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
    const bool isName = entry.nodes.size() == 2 && Root(entry).Rule == Node::Atom;
    if (!isName) return refuse("Invalid bound variable, syntax error");
    const std::string& name = Root(entry).Name;

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

bool GeneralizeForm::StartPicking(Expression& statement) {
    StatusLine.Caption = "Click on highlighted (blue) expression";
    return AcceptBoundVar() && ReadStatement(statement);
}

void GeneralizeForm::Pick() {
    if (!StatementTextLabel.Visible) {
        return Beep(BoundVar.empty() ? "Enter the bound variable first."
                                     : "All occurrences have been replaced: press Continue, or "
                                       "Reset to start anew.");
    }
    Expression statement;
    if (StartPicking(statement)) ReplaceAtCaret(statement, BoundVar);
}

void GeneralizeForm::SelectAll() {
    Expression statement;
    if (!StartPicking(statement)) return;
    ReplaceAll(statement, Search::OutermostOnly, BoundVar);
    StatementTextLabel.Visible = false;
}

void GeneralizeForm::Reset() {
    CopyContent(SaveRTB, RTB);
    AskForBoundVar();
}

void GeneralizeForm::Continue() {
    if (!ParseOrRefuse(ExpressionIn(RTB).text)) return;
    if (!ParseOrRefuse(ExistGen(NewStmtText, BoundVar).texts[0])) return;
    Arg2Pending = 0;
    WriteAndClose();
}

}  // namespace tessaryn
