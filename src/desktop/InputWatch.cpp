#include "desktop/InputWatch.h"

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <utility>

namespace tessaryn {

namespace {

bool KeyWasLast = false;
QPointer<QWidget> PressedIn;  // the window of the last press of a mouse button

class Watch : public QObject {
  public:
    explicit Watch(std::function<void()> onInput) : onInput_(std::move(onInput)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool key = event->type() == QEvent::KeyPress;
        if (key || event->type() == QEvent::MouseButtonPress) {
            KeyWasLast = key;
            onInput_();
            const auto* widget = qobject_cast<QWidget*>(watched);
            if (!key && widget != nullptr) PressedIn = widget->window();
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    std::function<void()> onInput_;
};

}  // namespace

void WatchInput(std::function<void()> onInput) {
    static Watch* watch = nullptr;
    delete watch;
    watch = new Watch(std::move(onInput));
    watch->setParent(qApp);
    qApp->installEventFilter(watch);
}

QPoint PlaceOfInput() {
    // A dialogue that has come up meanwhile may well lie under the pointer.
    const QWidget* dialogue = QApplication::activeModalWidget();
    if (dialogue != nullptr && (KeyWasLast || dialogue != PressedIn)) {
        return dialogue->frameGeometry().bottomLeft();
    }
    if (!KeyWasLast) return QCursor::pos();
    const QWidget* focus = QApplication::focusWidget();
    if (focus == nullptr) return QCursor::pos();
    const QRect caret = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    return focus->mapToGlobal(caret.isNull() ? focus->rect().bottomLeft() : caret.bottomLeft());
}

}  // namespace tessaryn
