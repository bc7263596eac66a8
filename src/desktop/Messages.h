// The note that tells why a command was refused.
#pragma once

#include <QString>

namespace tessaryn {

void FadeNote();      // lets it go; the user has moved on
QString NoteShown();  // its text, "" if there is none
void ForgetNote();    // at the end, while there is still an application

}  // namespace tessaryn
