#include "desktop/WindowPlace.h"

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QRect>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindowStateChangeEvent>
#include <algorithm>
#include <utility>

#include "desktop/PaintedText.h"
#include "platform/Platform.h"

namespace tessaryn {

namespace {

constexpr int SettledAfter = 300;  // milliseconds without a change
constexpr int LongestFile = 100;   // bytes

constexpr auto NotNormal = Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen;

// Three quarters of the screen that the window is on.
QRect UsualPlace(const QWidget& window) {
    const QRect room = window.screen()->availableGeometry();
    QRect place({}, room.size() * 3 / 4);
    place.moveCenter(room.center());
    return place;
}

// As it was kept, no larger than its screen; empty if that can't be read or is on no screen.
QRect KeptPlace() {
    QFile file(ToQt(WindowPlaceFile));
    if (!file.open(QIODevice::ReadOnly)) return {};
    int numbers[4] = {};
    const QList<QByteArray> words = file.read(LongestFile).simplified().split(' ');
    if (words.size() != 4) return {};
    std::transform(words.begin(), words.end(), numbers,
                   [](const QByteArray& word) { return word.toInt(); });
    const QRect place(numbers[0], numbers[1], numbers[2], numbers[3]);
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect room = screen->availableGeometry();
        if (!room.contains(place.center()) || place.top() < room.top()) continue;
        return {place.topLeft(), place.size().boundedTo(room.size())};
    }
    return {};
}

std::string AsText(const QRect& place) {
    return QStringLiteral("%1 %2 %3 %4\n")
        .arg(place.x())
        .arg(place.y())
        .arg(place.width())
        .arg(place.height())
        .toStdString();
}

class PlaceKeeper : public QObject {
  public:
    explicit PlaceKeeper(QWidget& window) : QObject(&window), window_(window) {
        settle_.setSingleShot(true);
        settle_.setInterval(SettledAfter);
        connect(&settle_, &QTimer::timeout, this, [this] { Keep(); });
        connect(qApp, &QCoreApplication::aboutToQuit, this, [this] {
            if (settle_.isActive()) Keep();
        });
        window.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool moves = event->type() == QEvent::Resize || event->type() == QEvent::Move;
        if (moves && placed_) settle_.start();
        if (event->type() == QEvent::WindowStateChange) StateChanged();
        return QObject::eventFilter(watched, event);
    }

  private:
    bool IsNormal() const { return (window_.windowState() & NotNormal) == 0; }

    // Behind what the desktop itself makes of the window.
    void StateChanged() {
        if (!IsNormal() || std::exchange(placed_, true)) return;
        QTimer::singleShot(0, this, [this] {
            const QRect kept = KeptPlace();
            window_.setGeometry(kept.isEmpty() ? UsualPlace(window_) : kept);
        });
    }

    void Keep() {
        if (!IsNormal() || !window_.isVisible()) return;
        WriteBehind(
            WindowPlaceFile, [text = AsText(window_.geometry())] { return text; },
            [](const std::string&) {});
    }

    QWidget& window_;
    QTimer settle_;
    bool placed_ = false;  // the window has been other than maximised since the start
};

}  // namespace

void KeepPlaceOf(QWidget& window) {
    if (!WindowPlaceFile.empty()) new PlaceKeeper(window);
}

}  // namespace tessaryn
