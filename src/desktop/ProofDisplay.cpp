#include "desktop/ProofDisplay.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "desktop/AccessibleProof.h"
#include "desktop/Sheet.h"

namespace tessaryn {

namespace {

const QColor MarkColour(0, 90, 200);

constexpr int CaretWidth = 2;     // pixels
constexpr int LayoutsKept = 500;  // more than any screen shows

}  // namespace

int ProofDisplay::Round(double value) {
    return static_cast<int>(std::lround(std::clamp(value, -1e9, 1e9)));
}

int ProofDisplay::WidthWith(double line) {
    return Round(line) + 2 * Margin + CaretWidth;
}

ProofDisplay::ProofDisplay(RichTextBox& box, QWidget* parent, DisplayExtras extras)
    : QAbstractScrollArea(parent), box_(box), extras_(std::move(extras)) {
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setCursor(Qt::IBeamCursor);
    viewport()->setBackgroundRole(QPalette::Base);
    MakeSheet(*this);
    horizontalScrollBar()->setFocusPolicy(Qt::NoFocus);
    verticalScrollBar()->setFocusPolicy(Qt::NoFocus);
    box_.TakeChange();
    index_.Rebuild(box_.GetText());
    MeasureFont();
    Sync();
    AccessibleProof::Install();
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
    const int mark = extras_.markPlace ? extras_.markPlace() : -1;
    if (std::exchange(mark_, mark) != mark) viewport()->update();
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
        news_.CaretMoved(*this);
        news_.CommandDone(*this);
    }
}

bool ProofDisplay::TakeContent() {
    const SurfaceChange change = box_.TakeChange();
    if (!change.any) return false;
    const int units = index_.UnitsCounted();
    const int count = index_.Count();
    const int lastChanged = index_.LineAt(change.start + change.removed);
    index_.Update(box_.GetText(), change.start, change.removed, change.inserted);
    const int firstChanged = index_.LineAt(change.start);
    lines_.erase(lines_.lower_bound(firstChanged), lines_.end());
    if (widestPainted_.line > lastChanged) {
        widestPainted_.line += index_.Count() - count;
    } else if (widestPainted_.line >= firstChanged) {
        widestPainted_ = {};
    }
    MeasureFont();
    UpdateScrollBars();
    news_.ContentChanged(*this, change, units);
    return LineTop(firstChanged) < viewport()->height();
}

// The content begins in the size of statements, whatever it begins with.
void ProofDisplay::MeasureFont() {
    const int size = box_.FormatAt(0).Size;
    if (size == fontSize_) return;
    lines_.clear();
    widestPainted_ = {};
    CharFormat format;
    format.Size = fontSize_ = size;
    style_.font = FontOf(format);
    style_.tabColumns = LineIndex::TabColumns;
    const QFontMetricsF metrics(style_.font);
    ascent_ = static_cast<int>(std::ceil(metrics.ascent()));
    lineHeight_ = ascent_ + static_cast<int>(std::ceil(metrics.descent() + metrics.leading())) + 1;
    style_.columnWidth = metrics.horizontalAdvance(QLatin1Char('0'));
    UpdateScrollBars();
}

// What is seen of content of a size, beside the bars it needs. They are told from the room without
// any: a bar that is there already, and takes from the room of the other, does not keep both there.
QSize ProofDisplay::RoomFor(const QSize& content) const {
    const bool spaced =
        frameStyle() != QFrame::NoFrame &&
        style()->styleHint(QStyle::SH_ScrollView_FrameOnlyAroundContents, nullptr, this) != 0;
    const int gap =
        spaced ? style()->pixelMetric(QStyle::PM_ScrollView_ScrollBarSpacing, nullptr, this) : 0;
    const int besideText = verticalScrollBar()->sizeHint().width() + gap;
    const int belowText = horizontalScrollBar()->sizeHint().height() + gap;
    QSize room = maximumViewportSize();
    const bool tooWide = content.width() > room.width();
    const bool down = content.height() > room.height() - (tooWide ? belowText : 0);
    const bool across = content.width() > room.width() - (down ? besideText : 0);
    if (down) room.rwidth() -= besideText;
    if (across) room.rheight() -= belowText;
    return room;
}

void ProofDisplay::UpdateScrollBars() {
    const int widest = WidthWith(index_.WidestLine() * style_.columnWidth);
    const QSize content(std::max(widest, widestPainted_.width),
                        Round(double(index_.Count()) * lineHeight_) + 2 * Margin);
    const QSize room = RoomFor(content);
    verticalScrollBar()->setRange(0, std::max(0, content.height() - room.height()));
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setSingleStep(lineHeight_);
    horizontalScrollBar()->setRange(0, std::max(0, content.width() - room.width()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(Round(style_.columnWidth * 4));
}

// --- layout

LineLayout& ProofDisplay::LaidOut(int number) {
    if (const auto found = lines_.find(number); found != lines_.end()) return found->second;
    if (lines_.size() > LayoutsKept) lines_.clear();
    ++linesLaidOut_;
    const int end = index_.End(box_.GetText(), number);
    return lines_.try_emplace(number, box_, index_.Start(number), end, style_).first->second;
}

int ProofDisplay::LineTop(int line) const {
    return Round(double(line) * lineHeight_ + Margin - verticalScrollBar()->value());
}

int ProofDisplay::LineAtY(int y) const {
    const int line = (y + verticalScrollBar()->value() - Margin) / lineHeight_;
    return std::clamp(line, 0, index_.Count() - 1);
}

int ProofDisplay::PositionAt(const QPoint& place, QTextLine::CursorPosition kind) {
    const double x = place.x() + horizontalScrollBar()->value() - Margin;
    return LaidOut(LineAtY(place.y())).ByteAt(x, kind);
}

int ProofDisplay::BoundaryAt(const QPoint& place) {
    return PositionAt(place, QTextLine::CursorBetweenCharacters);
}

int ProofDisplay::CharacterAt(const QPoint& place) {
    return PositionAt(place, QTextLine::CursorOnCharacter);
}

QRect ProofDisplay::CaretRect(int position) {
    const int number = index_.LineAt(position);
    return {Round(LaidOut(number).XAt(position)) + Margin - horizontalScrollBar()->value(),
            LineTop(number), CaretWidth, lineHeight_};
}

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
    PaintMark(painter);
    if (caretShown_ && hasFocus()) painter.fillRect(CaretRect(caret_), palette().text());
}

void ProofDisplay::PaintLine(QPainter& painter, int number) {
    LineLayout& line = LaidOut(number);
    QScrollBar* bar = horizontalScrollBar();
    const double left = bar->value() - Margin;  // of the line, in sight
    const double right = left + viewport()->width();
    const int first = std::max(std::min(anchor_, caret_), index_.Start(number));
    const int end = std::max(anchor_, caret_);
    const int lineEnd = index_.End(box_.GetText(), number);
    const int last = std::min(end, lineEnd);
    const QPalette::ColorGroup group = hasFocus() ? QPalette::Active : QPalette::Inactive;
    if (anchor_ != caret_ && first <= lineEnd && end > index_.Start(number)) {
        const double selectedLeft = std::max(line.XAt(first), left);
        double selectedRight = line.XAt(last);
        if (end > lineEnd) selectedRight += style_.columnWidth / 2;  // the line end is selected too
        selectedRight = std::min(selectedRight, right);
        const QRectF box(selectedLeft - left, LineTop(number), selectedRight - selectedLeft,
                         lineHeight_);
        painter.fillRect(box, palette().brush(group, QPalette::Highlight));
    }
    QTextCharFormat selected;
    selected.setForeground(palette().brush(group, QPalette::HighlightedText));
    line.Draw(painter, {-left, double(LineTop(number) + ascent_)}, left, right, first, last,
              selected);

    // A wide character or a fallback font may be wider than the index can tell.
    const int reach = bar->maximum() + bar->pageStep();
    if (const int width = WidthWith(line.Width()); width > reach) {
        widestPainted_ = {number, width};
        UpdateScrollBars();
    }
}

// In the empty line above, where there is one.
QRect ProofDisplay::MarkRect() const {
    if (mark_ < 0) return {};
    const int line = index_.LineAt(std::min(mark_, box_.TextLength()));
    const int middle = line > 0 ? LineTop(line) - lineHeight_ / 2 : LineTop(0) - Margin / 2;
    const int thickness = std::max(2, lineHeight_ / 8);
    return {0, middle - thickness / 2, viewport()->width(), thickness};
}

void ProofDisplay::PaintMark(QPainter& painter) const {
    const QRect mark = MarkRect();
    if (mark.isEmpty()) return;
    painter.fillRect(mark, MarkColour);
    const double reach = lineHeight_ / 3.0;
    const QPointF middle = QRectF(mark).center();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(MarkColour);
    painter.drawPolygon(
        QPolygonF{{0, middle.y() - reach}, {1.5 * reach, middle.y()}, {0, middle.y() + reach}});
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
