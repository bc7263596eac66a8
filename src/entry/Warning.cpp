#include "entry/Warning.h"

#include "mainwindow/ProgramState.h"

namespace tessaryn {

WarningForm::WarningForm() : Form("Warning", "WARNING") {
    cmdContinue.Click = [this] { Hide(); };
    cmdCancel.Click = [this] { Close(); };
    DefaultButton = &cmdContinue;
}

void WarningForm::Activated() {
    OperationCancelled = false;
    Beep(Reason);
    cmdContinue.SetFocus();
}

void WarningForm::Close() {
    OperationCancelled = true;
    Hide();
}

}  // namespace tessaryn
