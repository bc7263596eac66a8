// The dialogue of E Gen: names the bound variable, then replaces occurrences of a term by it, one
// by one or all at once, and writes EXIST(v):[...].
//
// The rule sets the values below, Arg1Pending and the caption, and shows the form modally. When it
// returns, the statement has been written or the user has cancelled.
#pragma once

#include <string>

#include "expr/Expression.h"
#include "rules/OccurrenceForm.h"

namespace tessaryn {

inline std::string GenExpression;  // the selected term, as cut from the statement
inline NodeList GenParseTable(1);  // its parse

struct GeneralizeForm : OccurrenceForm {
    GeneralizeForm();

    void Activated() override;
    bool KeyPressed(const KeyEvent& key) override;
    void Close() override;

    Label BoundVarLabel{*this, "BoundVarLabel", "Bound Variable:"};
    TextBox BoundVarTextBox{*this, "BoundVarTextBox"};

    std::string BoundVar;  // the name once accepted, until Reset; "" before

  private:
    void AskForBoundVar();
    void BoundVarChanged();
    bool AcceptBoundVar();
    bool StartPicking(Expression& statement);
    void Pick() override;
    void SelectAll() override;
    void Reset() override;
    void Continue() override;
};

inline GeneralizeForm Generalize;

}  // namespace tessaryn
