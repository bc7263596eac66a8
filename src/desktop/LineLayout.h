// One line of the proof display, laid out.
//
// A line may be megabytes long, so it is cut into pieces, most lines into one. A piece is laid out
// when someone first asks what stands in it; up to then it counts as wide as its columns are.
#pragma once

#include <QFont>
#include <QList>
#include <QTextLayout>
#include <memory>
#include <vector>

#include "desktop/PaintedText.h"
#include "platform/RichTextBox.h"

class QPainter;

namespace tessaryn {

// What all lines of a display share.
struct LineStyle {
    QFont font;
    double columnWidth = 1;  // pixels
    int tabColumns = 1;      // from one TAB stop to the next
};

class LineLayout {
  public:
    // The bytes first to last - 1 of a surface, which must stay as they are. The same for the
    // style.
    LineLayout(RichTextBox& box, int first, int last, const LineStyle& style);

    // From a byte of the surface to its place, in pixels from the start of the line, and back.
    double XAt(int byte);
    int ByteAt(double x, QTextLine::CursorPosition kind = QTextLine::CursorBetweenCharacters);
    double Width() const;

    // Where the caret goes from a byte that is not the last place, and not the first.
    int Next(int byte, QTextLayout::CursorMode mode);
    int Previous(int byte, QTextLayout::CursorMode mode);

    // Draws what lies between two places of the line. origin: where the line starts, on its base
    // line. Bytes selectedFirst to selectedLast - 1 take the colour of a selection.
    void Draw(QPainter& painter, const QPointF& origin, double left, double right,
              int selectedFirst, int selectedLast, const QTextCharFormat& selected);

    int PiecesLaidOut() const { return piecesLaidOut_; }

  private:
    struct Shown {
        PaintedText painted;
        QTextLayout layout;
        QTextLine line;
    };
    struct Piece {
        int first;                     // its first byte; the next piece's is its end
        double width;                  // pixels; by its columns until it has been laid out
        std::unique_ptr<Shown> shown;  // may go again
    };
    struct Place {
        std::size_t piece;
        double x;  // where that piece starts
    };

    void Cut();
    int EndOf(std::size_t piece) const;
    Place PieceOf(int byte) const;
    Shown& LaidOut(std::size_t number);

    RichTextBox& box_;
    int first_;
    int last_;
    const LineStyle& style_;
    std::vector<Piece> pieces_;  // at least one
    int piecesLaidOut_ = 0;
};

}  // namespace tessaryn
