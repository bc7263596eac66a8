// Folding: which statements are shown, and which numbers are bold. Nothing here changes the text of
// the proof, so none of it can be undone or marks the document as changed.
//
// A highlight is a statement whose number is bold. The detail block of a highlighted statement is
// the run of lines between it and the nearest shown highlight ahead of it. A premise block is a
// closed Premise with all lines up to its Conclusion.
#pragma once

namespace tessaryn {

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

}  // namespace tessaryn
