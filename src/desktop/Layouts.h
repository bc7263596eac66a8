// Where the widgets of a form stand.
#pragma once

#include <QSize>

class QWidget;

namespace tessaryn {

class FormWindow;

// Gives the inside of a window its layout and size: its own for a form known here, else one row
// after the other in the order of the controls.
void LayOut(FormWindow& window, QWidget& inside);

// How large a window can be on its screen, without the frame.
QSize RoomOnScreen(const QWidget& window);

}  // namespace tessaryn
