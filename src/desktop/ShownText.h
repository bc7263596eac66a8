// Texts that may come out of a file, on their way into titles, labels, menus and messages. They are
// shown as they stand, but for the middle of one that is too long for any screen: the toolkit and
// the system take their time over it, or give up.
#pragma once

#include <QString>
#include <string>

class QWidget;

namespace tessaryn {

QString ShownText(const std::string& text);

// Gives a window a title. The toolkit would take "[*]" for a mark of its own.
void SetTitle(QWidget& window, const std::string& title);

}  // namespace tessaryn
