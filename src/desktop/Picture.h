// The picture of the program: its icon, and what greets at the start.
#pragma once

#include <QPixmap>

namespace tessaryn {

// A square of that many dots. packaging/tessaryn.svg shows the same.
QPixmap ProgramPicture(int size);

}  // namespace tessaryn
