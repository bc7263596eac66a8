// A question with Continue and Cancel. Behind it, OperationCancelled tells whether the user
// cancelled.
#pragma once

#include <string>

#include "platform/Form.h"
#include "platform/Platform.h"

namespace tessaryn {

struct WarningForm : Form {
    WarningForm();

    void Activated() override;
    void Close() override;

    Label Message{*this, "Label"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
    std::string Reason;  // of the beep with which it shows
};

inline WarningForm Warning;

// Shows the form with a message, and a reason for the beep with which it shows.
void Warn(const std::string& message, const std::string& reason, EventHandler then);

}  // namespace tessaryn
