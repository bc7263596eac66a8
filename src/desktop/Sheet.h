// The white sheet that the proof and the boxes for expressions and comments are written on. The
// colours of their texts are made for white, so it is white whatever the desktop's theme.
#pragma once

class QWidget;

namespace tessaryn {

// Gives a widget the colours of the sheet: ground, caret and selection.
void MakeSheet(QWidget& widget);

}  // namespace tessaryn
