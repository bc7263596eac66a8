#include "desktop/SmallBoxes.h"

#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QValidator>

#include "desktop/Announcements.h"
#include "desktop/Desktop.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "desktop/ShownText.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

int BytesIn(const QString& text) {
    return static_cast<int>(text.toUtf8().size());
}

int UnitsIn(const std::string& text, int bytes) {
    const auto length = static_cast<std::size_t>(std::max(0, bytes));
    return static_cast<int>(ToQt(text.substr(0, length)).size());
}

QString TakenIn(const QString& text) {
    return ToQt(TakenInOnOneLine(text.toStdString()));
}

// Not a check: the toolkit shows it whatever has come in, by whichever way.
class Intake : public QValidator {
  public:
    using QValidator::QValidator;
    State validate(QString& text, int& caret) const override {
        caret = static_cast<int>(TakenIn(text.left(caret)).size());
        text = TakenIn(text);
        return Acceptable;
    }
};

}  // namespace

StatusView::StatusView(RichTextBox& box, QWidget* parent) : QLabel(parent), box_(box) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setTextInteractionFlags(Qt::NoTextInteraction);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(QStringLiteral("Status line"));
    setAccessibleDescription(accessibleName());  // else it would be the tool tip
    Sync();
}

void StatusView::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
}

void StatusView::Sync() {
    setFont(TellingFont());
    setMinimumHeight(fontMetrics().lineSpacing() + 8);
    const bool centred = box_.GetSelAlignment() == Alignment::Center;
    setAlignment(Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft));
    const QString shown = ShownText(box_.GetText()).trimmed();
    if (shown == text()) return;
    setText(shown);
    setToolTip(shown);
    setAccessibleName(shown.isEmpty() ? QStringLiteral("Status line") : shown);
    if (isVisible()) Announce(shown);
}

LineBox::LineBox(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box) {
    setValidator(new Intake(this));
    connect(this, &QLineEdit::textEdited, this, [this] {
        Dispatch([this] {
            if (box_.Change) box_.Change();
        });
    });
    Sync();
}

void LineBox::Pull() {
    const QString shown = text();
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    box_.Text = shown.toStdString();
    box_.SelStart = BytesIn(shown.left(start));
    box_.SelLength = BytesIn(selectedText());
}

void LineBox::Sync() {
    if (fontSize_ != box_.FontSize) {
        CharFormat format;
        format.Size = fontSize_ = box_.FontSize;
        setFont(FontOf(format));
    }
    if (text() != ToQt(box_.Text)) setText(ToQt(box_.Text));
    const int start = UnitsIn(box_.Text, box_.SelStart);
    const int length = UnitsIn(box_.Text, box_.SelStart + box_.SelLength) - start;
    const int shownStart = hasSelectedText() ? selectionStart() : cursorPosition();
    if (start == shownStart && length == selectedText().size()) return;
    if (length > 0) {
        setSelection(start, length);
    } else {
        deselect();
        setCursorPosition(start);
    }
}

}  // namespace tessaryn
