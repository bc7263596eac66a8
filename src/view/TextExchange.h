// Text on its way into the boxes and out of the surfaces: by the clipboard, the primary selection,
// a drag or a key.
//
// Other programs know nothing of the signs that a surface keeps in fonts of their own. In plain
// text the element sign is "@" on its way out, and "@", "ε" or "∈" on its way in; a triangle is
// nothing.
#pragma once

#include <string>

#include "platform/RichTextBox.h"

namespace tessaryn {

// Rich text of the box in use before its last Cut, Delete, Paste, Clear or Del key.
inline std::string BoxUndoText;
// Length in bytes of the selection last copied by Copy; 0 until then.
inline int ClipLength = 0;

// "@" for every "ε" and "∈".
std::string WithElementSign(std::string text);
// As a box takes it: the element sign as "@", no TABs.
std::string TakenIn(std::string text);
// The same for a box of one line, without line ends.
std::string TakenInOnOneLine(std::string text);

// "@" for an element sign, and nothing for a triangle and the blank behind it.
std::string PlainText(const RichText& content);

// What a surface hands out: the selection as plain text and, in rich text mode, with its look.
LateClip SelectionOf(const RichTextBox& box);

// Puts what has come in on the WorkArea surface, normalised to an expression in black.
void LoadWorkArea(const Clip& content);

// Replaces the selection of a box for expressions by what has come in. All of the box is normalised
// as by LoadWorkArea; the caret ends behind the new text.
void PutIn(RichTextBox& box, const Clip& content);

// The selection of a box to the clipboard. Without a selection: beep.
void Copy(RichTextBox& box);
// The selection of a box to another place of it, as one step for Undo.
void MoveSelection(RichTextBox& box, int to);
// PutIn with the clipboard's content; the caret then moves by ClipLength.
void Paste(RichTextBox& box);

}  // namespace tessaryn
