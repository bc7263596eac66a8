#include "desktop/EscRun.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenuBar>
#include <QToolTip>

#include "desktop/Desktop.h"
#include "desktop/Messages.h"

namespace tessaryn {

namespace {

// Escs with no other input between them.
struct EscRun {
    QElapsedTimer spent;       // since the last one that was; invalid: the run has none
    bool leftMenuBar = false;  // the last one has
};

EscRun Run;
quint64 ReleasedAt = 0;  // the last key, in the display's own time; 0 unknown

// The menu bar, a menu, a dialogue, any other window.
bool IsBesideTheProof(const QWidget& widget) {
    return widget.window() != MainWindow() || qobject_cast<const QMenuBar*>(&widget) != nullptr;
}

// One input may come by several times, on its way from window to widget and to that one's parents.
class Watch : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        switch (event->type()) {
            case QEvent::ShortcutOverride:  // of a shortcut nothing else is to be seen
            case QEvent::KeyPress:
                Take(qobject_cast<QWidget*>(watched), *static_cast<QKeyEvent*>(event));
                break;
            case QEvent::KeyRelease:
                ReleasedAt = static_cast<QKeyEvent*>(event)->timestamp();
                break;
            case QEvent::MouseButtonPress:
                Run = {};
                break;
            default:
                break;
        }
        return QObject::eventFilter(watched, event);
    }

  private:
    static void Take(const QWidget* widget, const QKeyEvent& key) {
        if (key.key() != Qt::Key_Escape) {
            Run = {};
        } else if (NoteStands() || QToolTip::isVisible() ||
                   (widget != nullptr && IsBesideTheProof(*widget))) {
            QToolTip::hideText();
            EscHasClosedSomething();
        }
    }
};

}  // namespace

void WatchEsc() {
    static Watch* watch = nullptr;
    delete watch;
    Run = {};
    watch = new Watch;
    watch->setParent(qApp);
    qApp->installEventFilter(watch);
}

// Held down, a key goes up and down at one and the same time. The toolkit overlooks that where the
// first press has changed the window that gets the keys.
bool IsRepeated(const QKeyEvent& key) {
    return key.isAutoRepeat() || (key.timestamp() != 0 && key.timestamp() == ReleasedAt);
}

bool EscIsSpent() {
    const bool goesOn =
        Run.spent.isValid() && !Run.spent.hasExpired(QApplication::doubleClickInterval());
    const bool spent = goesOn || Run.leftMenuBar;
    Run = {};
    if (spent) EscHasClosedSomething();
    return spent;
}

void EscHasClosedSomething() {
    Run.spent.start();
}

void EscHasLeftMenuBar() {
    Run.leftMenuBar = true;
}

}  // namespace tessaryn
