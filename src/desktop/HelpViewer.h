// The window of the manual, which can be read whatever else is open.
#pragma once

class QDialog;
class QWidget;

namespace tessaryn {

// Opens the manual and leaves alone what the program waits for. Says so where there is none.
void OpenManual();

// For a box of the toolkit, and those that it opens itself: it holds up the windows that it stands
// in front of but not the manual, which F1 opens.
void LeaveManualUsable(QDialog& box);

// To be told that a window other than the manual has come to the front. One that waits for a box
// hands on to it. A manual that stands beside the box, hiding nothing of it, stays in sight.
void WindowCameToFront(const QWidget& window);

void ForgetManual();  // at the end, while there is still an application

}  // namespace tessaryn
