#include "desktop/LineLayout.h"

#include <QPainter>
#include <QTextOption>
#include <algorithm>

#include "text/Utf8.h"

namespace tessaryn {

namespace {

constexpr int PieceColumns = 2000;    // and up to the next TAB stop
constexpr int PiecesKept = 100;       // more than any screen shows
constexpr double NoWrap = 8'000'000;  // pixels; close to the widest line that Qt can lay out

}  // namespace

LineLayout::LineLayout(RichTextBox& box, int first, int last, const LineStyle& style)
    : box_(box), first_(first), last_(last), style_(style) {
    Cut();
}

// At TAB stops, so that those of a piece are those of the line.
void LineLayout::Cut() {
    const std::string& text = box_.GetText();
    int first = first_;
    int columns = 0;
    const auto add = [&](int end) {
        pieces_.push_back({first, columns * style_.columnWidth, nullptr});
        first = end;
        columns = 0;
    };
    for (int at = first_; at < last_; at += SequenceLength(text, at)) {
        if (columns >= PieceColumns && columns % style_.tabColumns == 0) add(at);
        const bool tab = text[static_cast<std::size_t>(at)] == '\t';
        columns += tab ? style_.tabColumns - columns % style_.tabColumns : 1;
    }
    add(last_);
}

int LineLayout::EndOf(std::size_t piece) const {
    return piece + 1 < pieces_.size() ? pieces_[piece + 1].first : last_;
}

LineLayout::Place LineLayout::PieceOf(int byte) const {
    Place place{0, 0};
    for (; byte >= EndOf(place.piece) && place.piece + 1 < pieces_.size(); ++place.piece) {
        place.x += pieces_[place.piece].width;
    }
    return place;
}

LineLayout::Shown& LineLayout::LaidOut(std::size_t number) {
    Piece& piece = pieces_[number];
    if (piece.shown) return *piece.shown;
    if (piecesLaidOut_++ % PiecesKept == 0) {
        for (Piece& other : pieces_) other.shown.reset();
    }
    piece.shown = std::make_unique<Shown>();
    Shown& shown = *piece.shown;
    shown.painted = PaintText(box_, piece.first, EndOf(number));
    QList<QTextLayout::FormatRange> formats;
    for (const auto& span : shown.painted.spans) {
        formats.append({span.start, span.length, TextFormat(span.format)});
    }
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTabStopDistance(style_.columnWidth * style_.tabColumns);
    shown.layout.setText(shown.painted.text);
    shown.layout.setFont(style_.font);
    shown.layout.setTextOption(option);
    shown.layout.setFormats(formats);
    shown.layout.setCacheEnabled(true);
    shown.layout.beginLayout();
    shown.line = shown.layout.createLine();
    shown.line.setLineWidth(NoWrap);
    shown.layout.endLayout();
    piece.width = shown.line.naturalTextWidth();
    return shown;
}

double LineLayout::XAt(int byte) {
    const Place place = PieceOf(byte);
    const Shown& shown = LaidOut(place.piece);
    return place.x + shown.line.cursorToX(shown.painted.UnitAt(byte));
}

int LineLayout::ByteAt(double x, QTextLine::CursorPosition kind) {
    std::size_t number = 0;
    while (number + 1 < pieces_.size() && x >= pieces_[number].width) x -= pieces_[number++].width;
    const Shown& shown = LaidOut(number);
    return shown.painted.bytes[static_cast<std::size_t>(shown.line.xToCursor(x, kind))];
}

double LineLayout::Width() const {
    double width = 0;
    for (const Piece& piece : pieces_) width += piece.width;
    return width;
}

int LineLayout::Next(int byte, QTextLayout::CursorMode mode) {
    const Shown& shown = LaidOut(PieceOf(byte).piece);
    const int unit = shown.layout.nextCursorPosition(shown.painted.UnitAt(byte), mode);
    return shown.painted.bytes[static_cast<std::size_t>(unit)];
}

int LineLayout::Previous(int byte, QTextLayout::CursorMode mode) {
    const Shown& shown = LaidOut(PieceOf(byte - 1).piece);
    const int unit = shown.layout.previousCursorPosition(shown.painted.UnitAt(byte), mode);
    return shown.painted.bytes[static_cast<std::size_t>(unit)];
}

void LineLayout::Draw(QPainter& painter, const QPointF& origin, double left, double right,
                      int selectedFirst, int selectedLast, const QTextCharFormat& selected) {
    double x = 0;
    for (std::size_t number = 0; number < pieces_.size() && x <= right; ++number) {
        if (x + pieces_[number].width >= left) {
            const Shown& shown = LaidOut(number);
            const int first = std::max(selectedFirst, pieces_[number].first);
            const int last = std::min(selectedLast, EndOf(number));
            QList<QTextLayout::FormatRange> selections;
            if (first < last) {
                const int start = shown.painted.UnitAt(first);
                selections.append({start, shown.painted.UnitAt(last) - start, selected});
            }
            shown.layout.draw(&painter, origin + QPointF(x, -shown.line.ascent()), selections);
        }
        x += pieces_[number].width;
    }
}

}  // namespace tessaryn
