// What a click and a double click in the display do while no rule waits for one.
#pragma once

namespace tessaryn {

// The statement whose number the latest click in the display was on, and the one that it toggled;
// 0 none. A double click takes the toggle of its first click back, and it is on no number if that
// click was on none: a folded block may have opened under the pointer.
inline int ClickedNumber = 0;
inline int ToggledNumber = 0;

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
