// A proof file that is dropped on the window.
#pragma once

class QWidget;

namespace tessaryn {

// From now on a proof file dropped on the main window is opened as by Open. Nothing is taken while
// anything is asked.
void TakeDroppedProofs(QWidget& window);

}  // namespace tessaryn
