// The dialogue of the Induction Shortcut: a variable and a property of it, from which it writes the
// principle of induction.
//
// The command sets Arg1Pending and Arg2Pending and shows the form modally. When it returns, the
// statement has been written or the user has cancelled.
#pragma once

#include <string>

#include "entry/ExpressionEditor.h"
#include "platform/Form.h"

namespace tessaryn {

struct InductionDialogue : Form {
    InductionDialogue();

    void Activated() override;
    void Close() override;

    Label BoundVarLabel{*this, "BoundVarLabel",
                        "For ALL natural numbers (enter name of  variable)..."};
    TextBox BoundVarTextBox{*this, "BoundVarTextBox"};
    Label PropertyLabel{*this, "PropertyLabel", "We want to prove (enter logical expression)..."};
    RichTextBox RTB{*this, "RTB"};
    RichTextBox SaveRTB{*this, "SaveRTB"};  // RTB before the last Reset; hidden
    Label StatusLine{*this, "StatusLine"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdReset{*this, "cmdReset", "Reset"};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
    Timer Timer1{*this, "Timer1"};
    EditorMenus Menus;
    ExpressionEditor Editor{RTB, Menus, Timer1};

  private:
    void Reset();
    void Continue();
    bool TakeBoundVar();
    bool TakeProperty();
    bool CheckPropertyNames();
    bool Refuse(const std::string& message, Control& focus, const std::string& reason = "");
    bool RefuseVar(const std::string& reason);  // "Invalid bound variable"
    bool RefuseProperty(const std::string& message);

    std::string var_;  // the accepted name
};

inline InductionDialogue InductionForm;

}  // namespace tessaryn
