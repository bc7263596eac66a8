// Where the user's last input took place: at the pointer or, after a key, at the caret.
#pragma once

#include <QPoint>
#include <functional>

namespace tessaryn {

// Begins to watch. onInput is called at each key and button that goes down.
void WatchInput(std::function<void()> onInput);

QPoint PlaceOfInput();  // on the screen

}  // namespace tessaryn
