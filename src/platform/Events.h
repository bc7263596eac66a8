// What a front end calls when the user does something, so that both front ends send the logic the
// same events in the same order.
#pragma once

#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

// Sends a key to the form and, if it does not take it, to the control with the focus. True if
// either dealt with it; otherwise the control's own editing applies.
bool SendKey(Form& form, Control* focus, const KeyEvent& key);

// The left button released over a surface, with caret and selection as they stand: Click and the
// button-up.
void SendRelease(RichTextBox& box);

// A press and release at a place of a surface: caret at start, `length` characters selected by the
// drag. Sends Click and the button-up.
void SendClick(RichTextBox& box, int start, int length = 0);

// A double click at a place: the click, and unless that opened a form the double click and the
// button-up. The second press does not move the caret.
void SendDoubleClick(RichTextBox& box, int start);

// Text put into a box by other means than its own Paste: a key of the toolkit's, the middle button,
// a drop. A box that lets none in stays as it is.
void SendPaste(RichTextBox& box, const Clip& content);

// A button, menu item, check box or option pressed by the user; a disabled or hidden one, or one
// without a handler, does nothing and gives false.
bool SendChoose(Control& control);

}  // namespace tessaryn
