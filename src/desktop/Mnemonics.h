// Letters for the keyboard in the menus of the boxes, whose captions mark none.
#pragma once

#include <QAction>

namespace tessaryn {

// Puts "&" into the texts of the items of a menu that have none, ahead of a letter that is no other
// item's as far as there are such letters.
void AddMnemonics(const QList<QAction*>& items);

}  // namespace tessaryn
