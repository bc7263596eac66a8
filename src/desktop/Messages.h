// The note that tells why a command was refused.
#pragma once

#include <QFont>
#include <QString>

namespace tessaryn {

// The font of what tells the user something beside the proof: the desktop's own, and larger with
// the text size Large.
QFont TellingFont();

void FadeNote();      // lets it go, unless it explains a message box that is open
QString NoteShown();  // its text, "" if there is none
bool NoteStands();    // one is in sight and has not been let go
void ForgetNote();    // at the end, while there is still an application

}  // namespace tessaryn
