#include "desktop/ShownText.h"

#include <QWidget>

#include "desktop/PaintedText.h"
#include "text/TextSteps.h"

namespace tessaryn {

namespace {

constexpr std::size_t LongestShown = 2000;  // bytes, of which a half is the text's end

}  // namespace

QString ShownText(const std::string& text) {
    if (text.size() <= LongestShown) return ToQt(text);
    const int half = static_cast<int>(LongestShown / 2);
    const auto head = static_cast<std::size_t>(CharStart(text, half));
    const int end = static_cast<int>(text.size());
    const auto tail = static_cast<std::size_t>(CharEnd(text, end - half));
    return ToQt(text.substr(0, head)) + QStringLiteral(" ... ") + ToQt(text.substr(tail));
}

void SetTitle(QWidget& window, const std::string& title) {
    QString shown = ShownText(title);
    shown.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    if (window.windowTitle() != shown) window.setWindowTitle(shown);
}

}  // namespace tessaryn
