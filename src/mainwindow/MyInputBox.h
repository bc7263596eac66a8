// The one-line dialogue with which a rule asks for a number or for names.
//
// The rule sets RuleMode, caption, Label1 and Label2 (and Text1 in modes 7, 46 and 47) and shows
// the form modally. RuleMode is 0 afterwards if the user cancelled. What Continue does depends on
// RuleMode; the table of modes is in MyInputBox.cpp.
#pragma once

#include "platform/Form.h"
#include "platform/Platform.h"

namespace tessaryn {

struct MyInputBoxForm : Form {
    MyInputBoxForm();

    void Activated() override;
    void Close() override;

    Label Label1{*this, "Label1"};
    TextBox Text1{*this, "Text1"};
    Label Label2{*this, "Label2"};
    Button Continue{*this, "Continue", "Continue..."};
    Button Cancel{*this, "Cancel", "Cancel"};

  private:
    void ContinuePressed();
};

inline MyInputBoxForm MyInputBox;

// Refuses the entry: beep, the message in Label2, the focus back to Text1. The box stays. `reason`
// goes with the beep where the message alone does not tell what to enter.
void RefuseEntry(const std::string& message, const std::string& reason = "");

// The same for what has beeped with its own reason already, such as the statement writer.
void ShowEntryFault(const std::string& message);

}  // namespace tessaryn
