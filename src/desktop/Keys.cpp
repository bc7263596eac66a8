#include "desktop/Keys.h"

#include <QKeyEvent>

namespace tessaryn {

namespace {

std::optional<Key> NamedKey(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Key::Enter;
        case Qt::Key_Escape:
            return Key::Esc;
        case Qt::Key_Delete:
            return Key::Del;
        case Qt::Key_Insert:
            return Key::Insert;
        case Qt::Key_Backspace:
            return Key::Backspace;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return Key::Tab;
        case Qt::Key_Left:
            return Key::Left;
        case Qt::Key_Right:
            return Key::Right;
        case Qt::Key_Up:
            return Key::Up;
        case Qt::Key_Down:
            return Key::Down;
        case Qt::Key_Home:
            return Key::Home;
        case Qt::Key_End:
            return Key::End;
        default:
            return {};
    }
}

}  // namespace

std::optional<KeyEvent> KeyOf(const QKeyEvent& event) {
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    const bool alt = (event.modifiers() & Qt::AltModifier) != 0;
    KeyEvent key;
    key.ctrl = control;
    key.shift = (event.modifiers() & Qt::ShiftModifier) != 0;
    if (const auto named = NamedKey(event.key())) {
        key.key = *named;
        return alt ? std::nullopt : std::optional(key);
    }
    if (event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35) {
        key.key = Key::Function;
        key.number = event.key() - Qt::Key_F1 + 1;
        return key;
    }
    const QString text = event.text();
    const bool printable = !text.isEmpty() && text.at(0).isPrint();
    if (printable && control == alt) {  // with both, a character of the third level
        key.ctrl = false;
        key.text = text.toStdString();
        return key;
    }
    if (control && !alt && event.key() >= Qt::Key_Space && event.key() <= Qt::Key_AsciiTilde) {
        key.text = std::string(1, static_cast<char>(event.key()));
        return key;
    }
    return {};
}

}  // namespace tessaryn
