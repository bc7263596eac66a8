// The dialogue of Subset: a name for the new subset, bound variables for its elements, and the
// criterion that they must satisfy.
//
// The rule sets the values below, Arg1Pending, Arg2Pending and the caption, and shows the form
// modally. When it returns, the statement has been written or the user has cancelled; RuleMode is
// 0.
#pragma once

#include <string>
#include <vector>

#include "entry/ExpressionEditor.h"
#include "inference/Subset.h"
#include "platform/Form.h"

namespace tessaryn {

inline SetStatement SubsetOf;  // the clicked statement

struct SubsetDialogue : Form {
    SubsetDialogue();

    void Activated() override;
    void Close() override;

    Label SubsetNameLabel{*this, "SubsetNameLabel", "Enter bound variable for name of subset:"};
    TextBox SubsetName{*this, "SubsetName"};
    Label Label1{*this, "Label1"};
    TextBox BoundVars{*this, "BoundVars"};
    Label SelectExpressionLabel{
        *this, "SelectExpressionLabel",
        "Enter selection criteria (may not refer to name of subset, above):"};
    RichTextBox SelectExpression{*this, "SelectExpression"};
    Label StatusLine{*this, "StatusLine"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
    EditButtons Tools{*this};
    Timer Timer1{*this, "Timer1"};
    EditorMenus Menus;
    ExpressionEditor Editor{SelectExpression, Menus, Timer1};

  private:
    void EmptyEntries();
    void Clear();
    void Continue();
    bool TakeSubsetName();
    bool TakeBoundVars();
    bool TakeCriterion();
    bool CheckCriterionNames();
    bool Refuse(const std::string& message, Control& focus, const std::string& reason = "");
    bool RefuseAtName(const std::string& message, const std::string& name);

    std::string subset_;             // the accepted entries; the criterion is in hand
    std::vector<std::string> vars_;  //
};

inline SubsetDialogue SubsetFrm;

}  // namespace tessaryn
