#include "desktop/InputWatch.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QWidget>
#include <utility>

namespace tessaryn {

namespace {

bool KeyWasLast = false;

bool IsKey(QEvent& event) {
    if (event.type() == QEvent::KeyPress) return true;
    // The Menu key's own press comes behind the menu that it opens.
    return event.type() == QEvent::ContextMenu &&
           static_cast<QContextMenuEvent&>(event).reason() == QContextMenuEvent::Keyboard;
}

class Watch : public QObject {
  public:
    explicit Watch(std::function<void()> onInput) : onInput_(std::move(onInput)) {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool key = IsKey(*event);
        if (key || event->type() == QEvent::MouseButtonPress) {
            KeyWasLast = key;
            onInput_();
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
    const QWidget* focus = QApplication::focusWidget();
    if (!KeyWasLast || focus == nullptr) return QCursor::pos();
    const QRect caret = focus->inputMethodQuery(Qt::ImCursorRectangle).toRect();
    // The caret may have been scrolled out of sight.
    const QRect inSight = caret & focus->rect();
    return focus->mapToGlobal(inSight.isEmpty() ? focus->rect().bottomLeft()
                                                : inSight.bottomLeft());
}

}  // namespace tessaryn
