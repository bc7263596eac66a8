// Beeps with their reasons, and message boxes.
#include <QApplication>
#include <QFontInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPropertyAnimation>
#include <QScreen>
#include <QTimer>

#include "desktop/Desktop.h"
#include "desktop/HelpViewer.h"
#include "desktop/InputWatch.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "view/Display.h"

namespace tessaryn {

namespace {

constexpr int ShownFor = 5000;    // milliseconds, and more for a long reason
constexpr int PerCharacter = 40;  // milliseconds
constexpr int FadeFor = 600;      // milliseconds
constexpr int WidestNote = 85;    // average characters

// Tells why a command was refused, beside the place of the input. Takes neither focus nor clicks.
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

    void Tell(const QString& reason, const QPoint& place) {
        fade_.stop();
        setWindowOpacity(1.0);
        setFont(TellingFont());
        setText(reason);
        setAccessibleName(reason);
        const int natural = fontMetrics().horizontalAdvance(reason) + 2 * margin() + 4;
        const int width = std::min(natural, fontMetrics().averageCharWidth() * WidestNote);
        resize(width, heightForWidth(width));
        move(Beside(place));
        show();
        raise();
        wait_.start(ShownFor + PerCharacter * static_cast<int>(reason.size()));
    }

    void Fade() {
        wait_.stop();
        if (isHidden() || fade_.state() == QAbstractAnimation::Running) return;
        fade_.setStartValue(windowOpacity());
        fade_.start();
    }

  private:
    // Below and to the right, so that what was clicked stays in sight.
    QPoint Beside(const QPoint& place) const {
        const QScreen* screen = QGuiApplication::screenAt(place);
        if (screen == nullptr) screen = QGuiApplication::primaryScreen();
        const QRect room = screen->availableGeometry();
        QPoint corner = place + QPoint(14, 18);
        if (corner.y() + height() > room.bottom()) corner.setY(place.y() - height() - 12);
        corner.setX(std::max(room.left(), std::min(corner.x(), room.right() - width())));
        return corner;
    }

    QTimer wait_;
    QPropertyAnimation fade_;
};

QPointer<Note> Shown;

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
    return button == QMessageBox::No ? Answer::No : Answer::Cancel;
}

}  // namespace

QFont TellingFont() {
    QFont font = QApplication::font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * std::max(1.0, RuleFontSize / 10.0));
    return font;
}

void Beep(const std::string& reason) {
    QApplication::beep();
    if (reason.empty()) return;
    if (!Shown) Shown = new Note;
    Shown->Tell(ToQt(reason), PlaceOfInput());
}

void FadeNote() {
    if (Shown) Shown->Fade();
}

QString NoteShown() {
    return Shown && Shown->isVisible() ? Shown->text() : QString();
}

void ForgetNote() {
    delete Shown;
}

Answer MsgBox(const std::string& text, const std::string& title, Buttons buttons,
              Answer defaultAnswer) {
    SyncWindows();
    QMessageBox box(TopWindow());
    LeaveManualUsable(box);
    box.setWindowTitle(ToQt(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(text));
    const bool asks = buttons == Buttons::YesNoCancel;
    box.setIcon(asks ? QMessageBox::Question : QMessageBox::Warning);
    box.setStandardButtons(asks ? QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel
                                : QMessageBox::StandardButtons(QMessageBox::Ok));
    box.setDefaultButton(ButtonFor(defaultAnswer));
    const int button = box.exec();
    if (Ending()) throw ProgramEnded{};
    return AnswerOf(button, buttons);
}

}  // namespace tessaryn
