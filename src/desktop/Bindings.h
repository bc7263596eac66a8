// A widget for each kind of control, bound to it.
#pragma once

#include <QAction>

#include "desktop/FormWindow.h"

namespace tessaryn {

// A control of the main window may look different: a button is a tool button there, the surface RTB
// is the proof display and StatusLine a line of text.
Binding Bind(Control& control, QWidget* parent, WindowKind kind);

Binding BindItem(MenuItem& item, QAction& action);

// A line between items.
bool IsSeparator(const MenuItem& item);

}  // namespace tessaryn
