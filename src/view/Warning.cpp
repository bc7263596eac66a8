#include "view/Warning.h"

#include "mainwindow/ProgramState.h"

namespace tessaryn {

WarningForm::WarningForm() : Form("Warning", "WARNING") {
    cmdContinue.Click = [this] { Hide(); };
    cmdCancel.Click = [this] { Cancel(); };
    DefaultButton = &cmdContinue;
}

void WarningForm::Activated() {
    OperationCancelled = false;
    Beep("Continue goes on, Cancel leaves the proof as it is.");
    cmdContinue.SetFocus();
}

bool WarningForm::KeyPressed(const KeyEvent& key) {
    if (key.key != Key::Esc) return false;
    Cancel();
    return true;
}

void WarningForm::CloseRequested() {
    Cancel();
}

void WarningForm::Cancel() {
    OperationCancelled = true;
    Hide();
}

}  // namespace tessaryn
