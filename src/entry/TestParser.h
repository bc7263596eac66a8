// The dialogue in which a whole expression is entered: a premise, an axiom, the term of a U Spec,
// the added operand of the arbitrary rules, the term of Reflex.
//
// The rule sets RuleMode and calls AskForExpression. An accepted text is in NewStmtText afterwards
// with its parse in the tables, unless `accept` has written the statement already.
#pragma once

#include <functional>
#include <string>

#include "entry/ExpressionEditor.h"
#include "platform/Form.h"

namespace tessaryn {

struct ExpressionQuestion {
    std::string caption;
    // What follows a successful parse: tests, and with some rules the writing of the statement.
    // Gives the message of the refusal, or "" with ParseError from the writing.
    std::function<std::string()> accept;
    std::string hint = "";  // in the place of refusals, until the first
};

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

    ExpressionQuestion Question;

  private:
    void Continue();
    void CheckEntry();
    void Accept();
    void Refuse(const std::string& message);
};

inline TestParserForm TestParser;

// Shows the form with a question; `then` runs when it has been hidden.
void AskForExpression(ExpressionQuestion question, EventHandler then);

}  // namespace tessaryn
