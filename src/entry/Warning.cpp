#include "entry/Warning.h"

#include <utility>

#include "mainwindow/ProgramState.h"
#include "mainwindow/Questions.h"

namespace tessaryn {

WarningForm::WarningForm() : Form("Warning", "WARNING") {
    cmdContinue.Click = [this] { Hide(); };
    cmdCancel.Click = [this] { Close(); };
    DefaultButton = &cmdContinue;
}

void WarningForm::Activated() {
    Beep(Reason);
    cmdContinue.SetFocus();
}

void WarningForm::Close() {
    OperationCancelled = true;
    Hide();
}

void Warn(const std::string& message, const std::string& reason, EventHandler then) {
    Warning.Message.Caption = message;
    Warning.Reason = reason;
    AskIn(Warning, std::move(then));
}

}  // namespace tessaryn
