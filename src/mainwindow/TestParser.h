// The dialogue in which a whole expression is entered: a premise, an axiom, the term of a U Spec,
// the added operand of the arbitrary rules, the term of Reflex.
//
// The caller sets RuleMode, caption and first hint and shows the form modally. Afterwards
// ParseError is "" if the entry was accepted and "Cancelled" if not; in modes 1 and 45 the accepted
// text is in NewStmtText with its parse in the tables, in the others the statement has been written
// already.
#pragma once

#include "mainwindow/ExpressionEditor.h"
#include "platform/Form.h"

namespace tessaryn {

struct TestParserForm : Form {
    TestParserForm();

    void Activated() override;
    void Close() override;

    RichTextBox RTB{*this, "RTB"};
    Label StatusLine{*this, "StatusLine"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};
    EditButtons Tools{*this, "CmdUndo"};
    Button cmdParse{*this, "cmdParse", "Parse"};
    Timer Timer1{*this, "Timer1"};
    EditorMenus Menus{*this};
    ExpressionEditor Editor{RTB, Menus, Timer1};

  private:
    void Continue();
    void CheckEntry();
    void CheckByMode();
    void Refuse(const std::string& message);
};

inline TestParserForm TestParser;

}  // namespace tessaryn
