// Folding: which statements are shown, and which numbers are bold. Nothing here changes the text of
// the proof, so none of it can be undone or marks the document as changed.
//
// A highlight is a statement whose number is bold. The detail block of a highlighted statement is
// the run of lines between it and the nearest shown highlight ahead of it. A premise block is a
// closed Premise with all lines up to its Conclusion.
#pragma once

namespace tessaryn {

// The statement whose number the latest click in the display toggled; 0 none. A double click takes
// the toggle of its first click back.
inline int ToggledNumber = 0;

// Commands of the View menu.
void HideAllDetails();
void ShowAllActive();
void ShowLastActive();
void ShowAllStmts();
void ShowHighlights();

// A click in the display that no rule wants. On a number: toggles the highlight. On a Conclusion's
// annotation: folds or unfolds its block. Elsewhere in a block: the comment editor, in front of
// statement 1 that of the introduction.
void ToggleConclusion();

// Would a double click at a place of the display, 1-based, mean something: is it on a number?
bool IsOnNumber(int place);

// A double click in the display, behind its single click: on the number of a highlighted statement
// it folds or unfolds the detail block. The caret follows when the button comes up.
void ToggleDetailBlock();

}  // namespace tessaryn
