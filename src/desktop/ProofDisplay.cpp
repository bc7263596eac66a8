#include "desktop/ProofDisplay.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <iterator>

namespace tessaryn {

namespace {

constexpr int Margin = 6;           // pixels around the text
constexpr int CaretWidth = 2;       // pixels
constexpr int LayoutsKept = 500;    // more than any screen shows
constexpr double NoWrap = 8000000;  // pixels; close to the widest line that Qt can lay out

int Round(double value) {
    return static_cast<int>(std::lround(value));
}

}  // namespace

ProofDisplay::ProofDisplay(RichTextBox& box, QWidget* parent)
    : QAbstractScrollArea(parent), box_(box) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    horizontalScrollBar()->setFocusPolicy(Qt::NoFocus);
    verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
    box_.TakeChange();
    index_.Rebuild(box_.GetText());
    MeasureFont();
    Sync();
}

// --- content

void ProofDisplay::Sync() {
    const bool changed = TakeContent();
    const int start = box_.GetSelStart();
    const int end = start + box_.GetSelLength();
    const bool moved = start != std::min(anchor_, caret_) || end != std::max(anchor_, caret_);
    if (moved) {
        anchor_ = start;
        caret_ = end;
        goalX_ = -1;
    }
    for (const int place : box_.TakePlacesToShow()) EnsureVisible(place);
    if (moved && dragging_) {
        // A selection that has come to take in a line's end still shows that line.
        const int line = index_.LineAt(std::max(0, caret_ - 1));
        EnsureVisible(std::min(caret_, index_.End(box_.GetText(), line)));
    } else if (moved && start < end) {
        EnsureVisible(end);  // what has been found is to be read, not only its start
        EnsureVisible(start);
    }
    if (changed || moved) {
        RestartCaret();
        viewport()->update();
    }
}

// Brings the index up to date. True if anything in sight may look different.
bool ProofDisplay::TakeContent() {
    const SurfaceChange change = box_.TakeChange();
    if (!change.any) return false;
    index_.Update(box_.GetText(), change.start, change.removed, change.inserted);
    lines_.clear();
    MeasureFont();
    UpdateScrollBars();
    return LineTop(index_.LineAt(change.start)) < viewport()->height();
}

// The content begins in the size of statements, whatever it begins with.
void ProofDisplay::MeasureFont() {
    const int size = box_.FormatAt(0).Size;
    if (size == fontSize_) return;
    CharFormat format;
    format.Size = fontSize_ = size;
    const QFontMetricsF metrics(FontOf(format));
    ascent_ = static_cast<int>(std::ceil(metrics.ascent()));
    lineHeight_ = ascent_ + static_cast<int>(std::ceil(metrics.descent() + metrics.leading())) + 1;
    columnWidth_ = metrics.horizontalAdvance(QLatin1Char('0'));
    UpdateScrollBars();
}

void ProofDisplay::UpdateScrollBars() {
    const QSize room = viewport()->size();
    const int height = index_.Count() * lineHeight_ + 2 * Margin;
    const int width = Round(index_.WidestLine() * columnWidth_) + 2 * Margin + CaretWidth;
    verticalScrollBar()->setRange(0, std::max(0, height - room.height()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(lineHeight_);
    horizontalScrollBar()->setRange(0, std::max(0, width - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(Round(columnWidth_ * 4));
}

// --- layout

ProofDisplay::Line& ProofDisplay::LaidOut(int number) {
    if (const auto found = lines_.find(number); found != lines_.end()) return found->second;
    if (lines_.size() > LayoutsKept) lines_.clear();

    Line& line = lines_[number];
    line.painted = PaintText(box_, index_.Start(number), index_.End(box_.GetText(), number));
    QList<QTextLayout::FormatRange> formats;
    for (const auto& span : line.painted.spans) {
        formats.append({span.start, span.length, TextFormat(span.format)});
    }
    CharFormat plain;
    plain.Size = fontSize_;
    line.layout = std::make_unique<QTextLayout>(line.painted.text, FontOf(plain));
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTabStopDistance(columnWidth_ * LineIndex::TabColumns);
    line.layout->setTextOption(option);
    line.layout->setFormats(formats);
    line.layout->setCacheEnabled(true);
    line.layout->beginLayout();
    line.layout->createLine().setLineWidth(NoWrap);
    line.layout->endLayout();
    ++linesLaidOut_;
    return line;
}

int ProofDisplay::LineTop(int line) const {
    return Margin + line * lineHeight_ - verticalScrollBar()->value();
}

int ProofDisplay::LineAtY(int y) const {
    const int line = (y + verticalScrollBar()->value() - Margin) / lineHeight_;
    return std::clamp(line, 0, index_.Count() - 1);
}

int ProofDisplay::PositionAt(const QPoint& place, QTextLine::CursorPosition kind) {
    const Line& line = LaidOut(LineAtY(place.y()));
    const double x = place.x() + horizontalScrollBar()->value() - Margin;
    const int unit = line.layout->lineAt(0).xToCursor(x, kind);
    return line.painted.bytes[static_cast<std::size_t>(unit)];
}

int ProofDisplay::BoundaryAt(const QPoint& place) {
    return PositionAt(place, QTextLine::CursorBetweenCharacters);
}

int ProofDisplay::CharacterAt(const QPoint& place) {
    return PositionAt(place, QTextLine::CursorOnCharacter);
}

QRect ProofDisplay::CaretRect(int position) {
    const int number = index_.LineAt(position);
    const Line& line = LaidOut(number);
    const double x = line.layout->lineAt(0).cursorToX(line.painted.UnitAt(position));
    return {Round(x) + Margin - horizontalScrollBar()->value(), LineTop(number), CaretWidth,
            lineHeight_};
}

// Scrolls no further than needed; but back to the line starts where the place is in sight there.
void ProofDisplay::EnsureVisible(int position) {
    const QRect place = CaretRect(std::clamp(position, 0, box_.TextLength()));
    QScrollBar* vertical = verticalScrollBar();
    if (place.top() < Margin) {
        vertical->setValue(vertical->value() + place.top() - Margin);
    } else if (place.bottom() >= viewport()->height()) {
        vertical->setValue(vertical->value() + place.bottom() + 1 - viewport()->height());
    }
    QScrollBar* horizontal = horizontalScrollBar();
    if (place.left() < Margin) {
        const int left = horizontal->value() + place.left() - Margin;
        horizontal->setValue(left + Margin + CaretWidth < viewport()->width() ? 0 : left);
    } else if (place.right() >= viewport()->width()) {
        horizontal->setValue(horizontal->value() + place.right() + 1 - viewport()->width());
    }
}

// --- painting

void ProofDisplay::paintEvent(QPaintEvent* event) {
    TakeContent();
    QPainter painter(viewport());
    const int last = LineAtY(event->rect().bottom());
    for (int line = LineAtY(event->rect().top()); line <= last; ++line) PaintLine(painter, line);
    if (caretShown_ && hasFocus()) painter.fillRect(CaretRect(caret_), palette().text());
}

void ProofDisplay::PaintLine(QPainter& painter, int number) {
    const Line& line = LaidOut(number);
    const QTextLine shown = line.layout->lineAt(0);
    const QPointF origin(Margin - horizontalScrollBar()->value(),
                         LineTop(number) + ascent_ - shown.ascent());
    const int start = std::min(anchor_, caret_);
    const int end = std::max(anchor_, caret_);
    const int first = std::max(start, index_.Start(number));
    const int lineEnd = index_.End(box_.GetText(), number);
    QList<QTextLayout::FormatRange> selections;
    const QPalette::ColorGroup group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    if (start < end && first <= lineEnd && end > index_.Start(number)) {
        const double left = shown.cursorToX(line.painted.UnitAt(first));
        double right = shown.cursorToX(line.painted.UnitAt(std::min(end, lineEnd)));
        if (end > lineEnd) right += columnWidth_ / 2;  // the line end is selected as well
        const QRectF box(origin.x() + left, LineTop(number), right - left, lineHeight_);
        painter.fillRect(box, palette().brush(group, QPalette::Highlight));
        const int unit = line.painted.UnitAt(first);
        QTextCharFormat format;
        format.setForeground(palette().brush(group, QPalette::HighlightedText));
        selections.append({unit, line.painted.UnitAt(std::min(end, lineEnd)) - unit, format});
    }
    line.layout->draw(&painter, origin, selections);

    // A wide character or a fallback font may be wider than the index can tell.
    const int width = Round(shown.naturalTextWidth()) + 2 * Margin + CaretWidth;
    QScrollBar* bar = horizontalScrollBar();
    if (width - viewport()->width() > bar->maximum()) {
        bar->setMaximum(width - viewport()->width());
    }
}

void ProofDisplay::RestartCaret() {
    if (!hasFocus()) return;
    caretShown_ = true;
    const int flash = QApplication::cursorFlashTime() / 2;
    if (flash > 0) blink_.start(flash, this);
}

void ProofDisplay::resizeEvent(QResizeEvent*) {
    UpdateScrollBars();
}

void ProofDisplay::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) {
        viewport()->update();
    }
}

QVariant ProofDisplay::inputMethodQuery(Qt::InputMethodQuery query) const {
    if (query == Qt::ImEnabled) return false;
    if (query != Qt::ImCursorRectangle) return QAbstractScrollArea::inputMethodQuery(query);
    // Laying a line out is no change that anyone could see.
    const QRect place = const_cast<ProofDisplay*>(this)->CaretRect(caret_);  // NOLINT
    return place.translated(viewport()->pos());
}

}  // namespace tessaryn
