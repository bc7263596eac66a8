#include "rules/Substitution.h"

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "rules/OccurrenceBox.h"

namespace tessaryn {

void SubstitutionForm::Activated() {
    Caption = "Substitute '" + SubstSource + "', Line " + std::to_string(Arg2Pending);
    SetPrompt("");
    ShowStatement(Arg2Pending, SubstTargetTable, SubstTarget);
    StartPicking();
    StatusLine.Caption = "Click on expression highlighted in blue, or Select ALL";
}

void SubstitutionForm::Close() {
    RuleMode = 0;
    Hide();
}

void SubstitutionForm::StartPicking() {
    cmdContinue.Enabled = cmdReset.Enabled = false;
    cmdSelectAll.Enabled = true;
    StatusLine.Caption = "Click on expression highlighted in blue, or Select All";
    RTB.SetFocus();
}

// A replaced place can be picked again if it holds the target.
void SubstitutionForm::Pick() {
    StatusLine.Caption = "Click on expression highlighted in blue, or Select All";
    Expression statement;
    if (ReadStatement(statement)) ReplaceAtCaret(statement, SubstSource);
}

void SubstitutionForm::SelectAll() {
    RTB.SetFocus();
    Expression statement;
    if (ReadStatement(statement)) ReplaceAll(statement, Search::AheadOfLastToken, SubstSource);
}

void SubstitutionForm::Reset() {
    CopyContent(SaveRTB, RTB);
    StartPicking();
}

void SubstitutionForm::Continue() {
    if (ParseOrRefuse(ExpressionIn(RTB).text)) WriteAndClose();
}

}  // namespace tessaryn
