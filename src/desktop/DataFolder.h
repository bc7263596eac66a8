// Where the files lie that come with the program: those of the installed one, or those of the
// source tree that it was built in. Absolute paths; "" if there is none.
#pragma once

#include <QString>

namespace tessaryn {

QString ManualFolder();
QString ExamplesFolder();

}  // namespace tessaryn
