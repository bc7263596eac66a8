// The dialogue of Substitute: replaces occurrences of one side of an equation in a statement by the
// other side, one by one or all at once, and writes the result.
//
// The rule sets the values below, Arg1Pending (the equation) and Arg2Pending (the statement) and
// shows the form modally. When it returns, the statement has been written or the user has
// cancelled.
#pragma once

#include <string>

#include "expr/Expression.h"
#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

inline std::string SubstEquation;  // the equation
inline std::string SubstSource;    // its side that is put in, in round brackets where it needs them
inline std::string SubstTarget;    // its other side, which is replaced
inline NodeList SubstTargetTable(1);  // the parse of SubstTarget

struct SubstitutionForm : Form {
    SubstitutionForm();

    void Activated() override;
    bool KeyPressed(const KeyEvent& key) override;
    void CloseRequested() override;

    Label StatementTextLabel{*this, "StatementTextLabel", "Statement Text:"};
    RichTextBox RTB{*this, "RTB"};
    RichTextBox SaveRTB{*this, "SaveRTB"};  // RTB as first shown; hidden
    Label StatusLine{*this, "StatusLine"};
    Button cmdSelectAll{*this, "cmdSelectAll", "Select All"};
    Button cmdReset{*this, "cmdReset", "Reset"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

  private:
    bool ReadStatement(Expression& statement);
    void Pick();
    void SelectAll();
    void Reset();
    void Continue();
    void Close();
};

inline SubstitutionForm Substitution;

}  // namespace tessaryn
