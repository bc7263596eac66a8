// Folding: which statements are shown, and which numbers are bold. Nothing here changes the text of
// the proof, so none of it can be undone or marks the document as changed.
//
// A highlight is a statement whose number is bold. The detail block of a highlighted statement is
// the run of lines between it and the nearest shown highlight ahead of it. A premise block is a
// closed Premise with all lines up to its Conclusion.
#pragma once

namespace tessaryn {

// The statement whose number the latest click in the display was on, and the one that it toggled;
// 0 none. A double click takes the toggle of its first click back, and it is on no number if that
// click was on none: a folded block may have opened under the pointer.
inline int ClickedNumber = 0;
inline int ToggledNumber = 0;

// Shows or hides a stretch of lines; closed blocks that begin in it stay as they are when it is
// shown. ShowActiveLines gives the first line that it shows, 0 if there is none.
int ShowActiveLines(int first, int last);
void HideLines(int first, int last);

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

// The shown statement whose number lies at a place of the display, 1-based; 0 if none does.
int NumberAt(int place);

// A double click in the display, behind its single click: on the number of a highlighted statement
// it folds or unfolds the detail block. The caret follows when the button comes up.
void ToggleDetailBlock();

}  // namespace tessaryn
