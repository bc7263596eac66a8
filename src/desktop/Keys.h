// Qt's key events as the logic knows them.
#pragma once

#include <optional>

#include "platform/Controls.h"

class QKeyEvent;

namespace tessaryn {

// Nothing for a key that no form listens to: a modifier alone, Page up, a key with Alt.
std::optional<KeyEvent> KeyOf(const QKeyEvent& event);

}  // namespace tessaryn
