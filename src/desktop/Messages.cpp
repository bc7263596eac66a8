// Beeps with their reasons, and message boxes.
#include <QApplication>
#include <QDialog>
#include <QFontInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPropertyAnimation>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "desktop/Announcements.h"
#include "desktop/Desktop.h"
#include "desktop/HelpViewer.h"
#include "desktop/InputWatch.h"
#include "desktop/Messages.h"
#include "desktop/ShownText.h"
#include "view/Display.h"

namespace tessaryn {

namespace {

constexpr int ShownFor = 5000;    // milliseconds, and more for a long reason
constexpr int PerCharacter = 40;  // milliseconds
constexpr int FadeFor = 600;      // milliseconds
constexpr int WidestNote = 85;    // average characters
constexpr int Gap = 6;            // pixels between a note and a box

// Tells why a command was refused, or what there is to know of it, beside the place of the input or
// outside the box in use. Takes neither focus nor clicks.
class Note : public QLabel {
  public:
    Note() : QLabel(nullptr, Qt::ToolTip | Qt::WindowTransparentForInput) {
        setAttribute(Qt::WA_ShowWithoutActivating);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFocusPolicy(Qt::NoFocus);
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setMargin(8);
        setFrameShape(QFrame::Box);
        QPalette colours = palette();
        colours.setColor(QPalette::Window, QColor(0xFF, 0xF6, 0xCC));
        colours.setColor(QPalette::WindowText, QColor(0x40, 0x30, 0x00));
        setPalette(colours);
        setAutoFillBackground(true);
        fade_.setTargetObject(this);
        fade_.setPropertyName("windowOpacity");
        fade_.setEndValue(0.0);
        fade_.setDuration(FadeFor);
        connect(&fade_, &QPropertyAnimation::finished, this, &QWidget::hide);
        wait_.setSingleShot(true);
        connect(&wait_, &QTimer::timeout, this, [this] { Fade(); });
    }

    void Tell(const QString& reason, const QWidget* box) {
        fade_.stop();
        QToolTip::hideText();  // it would stand at the same place
        setWindowOpacity(1.0);
        setFont(TellingFont());
        setText(reason);
        setAccessibleName(reason);
        const int natural = fontMetrics().horizontalAdvance(reason) + 2 * margin() + 4;
        const int width = std::min(natural, fontMetrics().averageCharWidth() * WidestNote);
        resize(width, heightForWidth(width));
        move(box == nullptr ? Beside(PlaceOfInput()) : Outside(*box));
        show();
        raise();
        explained_ = qobject_cast<const QMessageBox*>(box);
        wait_.start(ShownFor + PerCharacter * static_cast<int>(reason.size()));
    }

    bool Stands() const { return !isHidden() && fade_.state() != QAbstractAnimation::Running; }

    void Fade() {
        wait_.stop();
        if (!Stands() || (explained_ && explained_->isVisible())) return;
        fade_.setStartValue(windowOpacity());
        fade_.start();
    }

  private:
    static QRect RoomAt(const QPoint& place) {
        const QScreen* screen = QGuiApplication::screenAt(place);
        if (screen == nullptr) screen = QGuiApplication::primaryScreen();
        return screen->availableGeometry();
    }

    // Below and to the right, so that what was clicked stays in sight.
    QPoint Beside(const QPoint& place) const {
        const QRect room = RoomAt(place);
        QPoint corner = place + QPoint(14, 18);
        if (corner.y() + height() > room.bottom()) corner.setY(place.y() - height() - 12);
        corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - width())));
        return corner;
    }

    // Below the box or where else there is room; over none of its entries if it fills the screen.
    QPoint Outside(const QWidget& box) const {
        const QRect frame = box.frameGeometry();
        const QRect room = RoomAt(frame.center());
        const int x =
            std::clamp(frame.left(), room.left(), std::max(room.left(), room.right() - width()));
        const int y =
            std::clamp(frame.top(), room.top(), std::max(room.top(), room.bottom() - height()));
        const QPoint places[] = {
            {x, frame.bottom() + Gap},
            {x, frame.top() - height() - Gap},
            {frame.right() + Gap, y},
            {frame.left() - width() - Gap, y},
            {room.left(), room.bottom() - height()},
            {room.right() - width(), room.bottom() - height()},
            {room.left(), room.top()},
        };
        const auto* place =
            std::find_if(std::begin(places), std::end(places), [&](const QPoint& at) {
                const QRect note(at, size());
                return room.contains(note) && !HidesEntryOf(box, note);
            });
        return place == std::end(places) ? places[4] : *place;
    }

    static bool HidesEntryOf(const QWidget& box, const QRect& note) {
        const auto entries = box.findChildren<QWidget*>();
        return std::any_of(entries.begin(), entries.end(), [&](const QWidget* entry) {
            const bool counts = entry->focusPolicy() != Qt::NoFocus ||
                                qobject_cast<const QLabel*>(entry) != nullptr;
            return counts && entry->isVisible() &&
                   note.intersects({entry->mapToGlobal(QPoint()), entry->size()});
        });
    }

    QPointer<const QMessageBox> explained_;  // the note stays for as long as that is open
    QTimer wait_;
    QPropertyAnimation fade_;
};

QPointer<Note> Shown;
QString Waiting;  // what is to be told once the event is over

// The box in which the user works; nullptr in the main window.
QWidget* BoxOnTop() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return qobject_cast<QDialog*>(QApplication::activeWindow());
}

bool ALabelSays(const QString& reason, const QWidget* window) {
    if (window == nullptr) return false;
    QString words = reason.simplified();
    if (words.endsWith(QLatin1Char('.'))) words.chop(1);
    const auto labels = window->findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
        return label->isVisible() && label->text().simplified().contains(words);
    });
}

void TellWaiting() {
    const QString reason = std::exchange(Waiting, {});
    const QWidget* box = BoxOnTop();
    const QWidget* window = box != nullptr ? box : QApplication::activeWindow();
    if (reason.isEmpty() || ALabelSays(reason, window)) return;
    if (!Shown) Shown = new Note;
    Shown->Tell(reason, box);
}

QMessageBox::StandardButton ButtonFor(Answer answer) {
    switch (answer) {
        case Answer::Yes:
            return QMessageBox::Yes;
        case Answer::No:
            return QMessageBox::No;
        case Answer::Cancel:
            return QMessageBox::Cancel;
        case Answer::OK:
            break;
    }
    return QMessageBox::Ok;
}

Answer AnswerOf(int button, Buttons buttons) {
    if (buttons == Buttons::OK) return Answer::OK;
    if (button == QMessageBox::Yes) return Answer::Yes;
    const bool closed = button != QMessageBox::No;
    return closed && buttons == Buttons::YesNoCancel ? Answer::Cancel : Answer::No;
}

QMessageBox::StandardButtons AllOf(Buttons buttons) {
    switch (buttons) {
        case Buttons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case Buttons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        case Buttons::OK:
            break;
    }
    return QMessageBox::Ok;
}

}  // namespace

QFont TellingFont() {
    QFont font = QApplication::font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * std::max(1.0, RuleFontSize / 10.0));
    return font;
}

void Beep(const std::string& reason) {
    QApplication::beep();
    if (!reason.empty()) Tell(reason);
}

void Tell(const std::string& note) {
    Announce(ShownText(note));  // also where a label says it, perhaps since an earlier refusal
    // By then the labels say what they have to say, and a box that the event opens is there.
    if (Waiting.isEmpty()) QTimer::singleShot(0, qApp, TellWaiting);
    Waiting = ShownText(note);
}

void FadeNote() {
    if (Shown) Shown->Fade();
}

QString NoteShown() {
    return Shown && Shown->isVisible() ? Shown->text() : QString();
}

bool NoteStands() {
    return Shown != nullptr && Shown->Stands();
}

void ForgetNote() {
    Waiting.clear();
    delete Shown;
}

void PresentMessage(const Message& message, std::function<void(Answer)> reply) {
    SyncWindows();
    auto& box = *new QMessageBox(TopWindow());
    box.setAttribute(Qt::WA_DeleteOnClose);
    LeaveManualUsable(box);
    SetTitle(box, message.title);
    box.setTextFormat(Qt::PlainText);
    box.setText(ShownText(message.text));
    box.setIcon(message.buttons == Buttons::OK ? QMessageBox::Warning : QMessageBox::Question);
    box.setStandardButtons(AllOf(message.buttons));
    box.setDefaultButton(ButtonFor(message.defaultAnswer));
    QObject::connect(&box, &QDialog::finished, &box,
                     [buttons = message.buttons, reply = std::move(reply)](int button) {
                         FadeNote();
                         Dispatch([&] { reply(AnswerOf(button, buttons)); });
                     });
    box.open();
}

}  // namespace tessaryn
