// The one-line dialogue with which a rule asks for a number or for names.
//
// The rule sets RuleMode, which is 0 again if the user cancels, and calls AskInBox.
#pragma once

#include <string>

#include "platform/Form.h"
#include "platform/Platform.h"

namespace tessaryn {

struct BoxQuestion {
    std::string caption;
    std::string prompt;
    void (*accept)();         // what Continue does with an entry that holds no "#": writes the
                              // statement and hides the form, or refuses the entry
    std::string hint = "";    // in the place of refusals
    std::string preset = "";  // the entry to begin with
};

struct MyInputBoxForm : Form {
    MyInputBoxForm();

    void Activated() override;
    void Close() override;

    Label Label1{*this, "Label1"};
    TextBox Text1{*this, "Text1"};
    Label Label2{*this, "Label2"};
    Button Continue{*this, "Continue", "Continue..."};
    Button Cancel{*this, "Cancel", "Cancel"};

    BoxQuestion Question;

  private:
    void ContinuePressed();
};

inline MyInputBoxForm MyInputBox;

// Shows the form with a question; `then` runs when it has been hidden.
void AskInBox(BoxQuestion question, EventHandler then = nullptr);

// Refuses the entry: beep, the message in Label2, the focus back to Text1. The box stays. `reason`
// goes with the beep where the message alone does not tell what to enter.
void RefuseEntry(const std::string& message, const std::string& reason = "");

// The same for what has beeped with its own reason already, such as the statement writer.
void ShowEntryFault(const std::string& message);

}  // namespace tessaryn
