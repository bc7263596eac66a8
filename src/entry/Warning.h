// A question with Continue and Cancel. The caller sets Message and Reason and shows the form
// modally; afterwards OperationCancelled tells whether the user cancelled.
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

}  // namespace tessaryn
