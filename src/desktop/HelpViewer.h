// The window of the manual, which can be read whatever else is open.
#pragma once

#include <string>

class QDialog;
class QWidget;

namespace tessaryn {

struct Control;
struct Form;

// What F1 does in a form: a note of what fits the statement at the caret, else, and when it is
// pressed again while the note is in sight, the page of the manual. What the program waits for is
// left alone.
void GiveHelp(const Form& form, const Control& focus);

// For a box of the toolkit, and those that it opens itself: it holds up the windows that it stands
// in front of but not the manual, which F1 opens at a page; with "", at that of the pending rule.
void LeaveManualUsable(QDialog& box, std::string page = "");

// To be told that a window other than the manual has come to the front. One that waits for a box
// hands on to it. A manual that stands beside the box, hiding nothing of it, stays in sight.
void WindowCameToFront(const QWidget& window);

void ForgetManual();  // at the end, while there is still an application

}  // namespace tessaryn
