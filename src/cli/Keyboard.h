// The user's keyboard without a display: menu shortcuts, the form's and the box's key events, and
// the editing that a toolkit's boxes do by themselves.
#pragma once

#include <string>

#include "platform/Form.h"

namespace tessaryn {

// The control that keys go to; nullptr if the form has none that could take them.
Control* FocusOf(const Form& form);

// The key that types the character at a byte of a text, a line feed being Enter. Moves on behind
// it.
KeyEvent TakeKey(const std::string& text, std::size_t& at);

// "Esc", "Enter", "Del", "F1" to "F12", "Ctrl+A" to "Ctrl+Z". False: no such key.
bool KeyFromName(const std::string& name, KeyEvent& key);

// One key pressed in a form.
void PressKey(Form& form, const KeyEvent& key);

// Replaces the content of a box as selecting all and typing would. The caret ends behind the text;
// no event is sent if the text is there already. A one-line box leaves line feeds out.
void ReplaceByTyping(Control& box, const std::string& text);

}  // namespace tessaryn
