// What the proof display tells where the pointer rests.
#include <QHelpEvent>
#include <QToolTip>

#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "desktop/ProofDisplay.h"

namespace tessaryn {

namespace {

constexpr int LongestHint = 3000;  // characters

// Wrapped to lines of no more than `widest` pixels.
QString Wrapped(QString text, int widest) {
    if (text.size() > LongestHint) text = text.left(LongestHint) + QChar(0x2026);
    const QFont font = TellingFont();
    const int width = std::min(widest, QFontMetrics(font).horizontalAdvance(text) + 4);
    return QStringLiteral(
               "<table cellspacing=\"0\" cellpadding=\"0\" width=\"%1\"><tr><td "
               "style=\"font-size:%2pt\">%3</td></tr></table>")
        .arg(width)
        .arg(font.pointSizeF())
        .arg(text.toHtmlEscaped());
}

}  // namespace

bool ProofDisplay::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    ShowHint(static_cast<QHelpEvent*>(event)->pos());
    return true;
}

// The status of a name, else the whole of a line that is too long for the window. A note that
// stands at the pointer is not covered.
void ProofDisplay::ShowHint(const QPoint& place) {
    const int line = LineAtY(place.y());
    const QRect row(0, LineTop(line), viewport()->width(), lineHeight_);
    const auto tell = [&](const QString& text, const QRect& about) {
        QToolTip::showText(viewport()->mapToGlobal(place), Wrapped(text, row.width() * 3 / 4),
                           viewport(), about);
    };
    if (!row.contains(place) || pressed_ || NoteStands()) return QToolTip::hideText();
    if (const auto name = extras_.nameAt ? extras_.nameAt(CharacterAt(place)) : std::nullopt) {
        const QPoint end(CaretRect(name->end).left(), row.bottom());
        return tell(ToQt(name->words), QRect(CaretRect(name->start).topLeft(), end));
    }
    if (LaidOut(line).Width() <= row.width() - 2 * Margin) return QToolTip::hideText();
    const int end = index_.End(box_.GetText(), line);
    tell(ReadText(box_, index_.Start(line), end).trimmed(), row);
}

}  // namespace tessaryn
