// The place and size of the main window while it is not maximised, kept from one start to the next.
#pragma once

#include <string>

class QWidget;

namespace tessaryn {

inline std::string WindowPlaceFile;  // "": nothing is kept

// The window, maximised at the start, takes the kept place when the user first ends that, and what
// the user then makes of it is kept. A place that is on no screen counts as none.
void KeepPlaceOf(QWidget& window);

}  // namespace tessaryn
