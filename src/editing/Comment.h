// The dialogue for free text: the introduction of the proof and the comments of its statements.
//
// EditingIntro and CommentLine say what it works on; they hold until the next time.
#pragma once

#include "entry/ExpressionEditor.h"
#include "platform/Form.h"

namespace tessaryn {

// The editing commands, and the notation that is of use in a comment.
struct CommentMenus : EditMenu {
    explicit CommentMenus(Form& form);

    MenuItem mnuNotation, optUQuantifier, optEQuantifier, optSum, optProd;
};

struct CommentForm : Form {
    CommentForm();

    void Activated() override;
    void Close() override;

    RichTextBox CommentBox{*this, "CommentBox"};
    Button Continue{*this, "Continue", "Continue..."};
    Button Cancel{*this, "Cancel", "Cancel"};
    Button cmdProve{*this, "cmdProve", "&Prove", "Insert \"Prove:\""};
    Button cmdDefine{*this, "cmdDefine", "&Def", "Insert \"Define:\""};
    Button cmdSufficient{*this, "cmdSufficient", "&Suff", "Insert \"Sufficient:\""};
    Button cmdAsRequired{*this, "cmdAsRequired", "&As R", "Insert \"As Required:\""};
    EditButtons Tools{*this};
    Timer Timer1{*this, "Timer1"};
    CommentMenus Menus{*this};
    ExpressionEditor Editor;

  private:
    void ContinuePressed();
};

inline CommentForm Comment;

// Show the dialogue for the introduction, or for the comment of a statement.
void EditIntroduction();
void EditComment(int line);

}  // namespace tessaryn
