// The dialogue of E Gen: names the bound variable, then replaces occurrences of a term by it, one
// by one or all at once, and writes EXIST(v):[...].
//
// The rule sets the values below, Arg1Pending and the caption, and shows the form modally. When it
// returns, the statement has been written or the user has cancelled.
#pragma once

#include <string>

#include "expr/Expression.h"
#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

inline std::string GenExpression;  // the selected term, as cut from the statement
inline NodeList GenParseTable(1);  // its parse

struct GeneralizeForm : Form {
    GeneralizeForm();

    void Activated() override;
    bool KeyPressed(const KeyEvent& key) override;
    void CloseRequested() override;

    Label BoundVarLabel{*this, "BoundVarLabel", "Bound Variable:"};
    TextBox BoundVarTextBox{*this, "BoundVarTextBox"};
    Label StatementTextLabel{*this, "StatementTextLabel", "Statement  Text:"};
    RichTextBox RTB{*this, "RTB"};
    RichTextBox SaveRTB{*this, "SaveRTB"};  // RTB as first shown; hidden
    Label StatusLine{*this, "StatusLine"};
    Button cmdSelectAll{*this, "cmdSelectAll", "Select All"};
    Button cmdReset{*this, "cmdReset", "Reset"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

    std::string BoundVar;  // the name once accepted, until Reset; "" before

  private:
    void AskForBoundVar();
    void BoundVarChanged();
    bool AcceptBoundVar();
    bool StartPicking(Expression& statement);
    void Pick();
    void SelectAll();
    void Reset();
    void Continue();
    void Close();
    void Refuse(const std::string& message, Control& focus);
};

inline GeneralizeForm Generalize;

}  // namespace tessaryn
