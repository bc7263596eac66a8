// The proof display: a view over a rich-text surface that can be very long.
//
// It keeps no text, only an index of the line starts, and lays out the lines in sight when they are
// painted. The text can't be edited; caret and selection are the user's own.
#pragma once

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <functional>
#include <map>
#include <optional>

#include "desktop/LineIndex.h"
#include "desktop/LineLayout.h"
#include "desktop/ProofNews.h"
#include "platform/RichTextBox.h"
#include "view/NameStatus.h"

namespace tessaryn {

// What the display of the proof does beside showing its surface. What is empty is not done.
struct DisplayExtras {
    std::function<void(bool larger)> zoom;  // Ctrl with a step of the wheel
    std::function<int()> markPlace;  // start of the line ahead of which a mark stands; -1: none
    std::function<std::optional<NameStatus>(int place)> nameAt;  // told where the pointer rests
};

class ProofDisplay : public QAbstractScrollArea {
  public:
    explicit ProofDisplay(RichTextBox& box, QWidget* parent = nullptr, DisplayExtras extras = {});

    // Brings over what has changed in the surface.
    void Sync();
    // Of that, the text alone. True if anything in sight may look different.
    bool TakeContent();

    // The character boundary next to a place of the viewport, and the start of the character there.
    int BoundaryAt(const QPoint& place);
    int CharacterAt(const QPoint& place);
    // Where in the viewport the caret stands at a position of the surface.
    QRect CaretRect(int position);
    // Scrolls no further than needed; but back to the line starts where the place is in sight
    // there.
    void EnsureVisible(int position);

    // As the user selects, by bytes of the surface; the caret need not be behind the anchor.
    void Select(int anchor, int caret);
    int Anchor() const { return anchor_; }
    int Caret() const { return caret_; }

    RichTextBox& Box() const { return box_; }
    const LineIndex& Lines() const { return index_; }
    int LinesLaidOut() const { return linesLaidOut_; }  // since the start
    // Where the mark stands in the viewport; empty while there is none.
    QRect MarkRect() const;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;

  protected:
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    enum class Unit { Character, Word };

    static constexpr int Margin = 6;  // pixels around the text

    // To pixels; what lies further off than any text should reach is as far as that.
    static int Round(double value);
    static int WidthWith(double line);  // of the content, with a line of this width

    // ProofDisplay.cpp: content, layout, painting
    void MeasureFont();
    QSize RoomFor(const QSize& content) const;
    void UpdateScrollBars();
    LineLayout& LaidOut(int number);
    int LineTop(int line) const;  // in the viewport
    int LineAtY(int y) const;
    int PositionAt(const QPoint& place, QTextLine::CursorPosition kind);
    void PaintLine(QPainter& painter, int number);
    void PaintMark(QPainter& painter) const;
    void RestartCaret();

    // ProofDisplayHints.cpp: what is told where the pointer rests
    void ShowHint(const QPoint& place);

    // ProofDisplayInput.cpp: caret and selection
    void MoveCaret(int position, bool extend);
    void MoveByLines(int lines, bool extend);
    int Next(int position, Unit unit);
    int Previous(int position, Unit unit);
    bool MoveByKey(const QKeyEvent& event);
    bool MoveSideways(int key, Unit unit, bool extend);
    void DragTo(const QPoint& place);
    void ZoomAt(const QPointF& place, bool larger);
    void LeaveBlockEnd();
    void DoubleClickAtCaret();

    RichTextBox& box_;
    DisplayExtras extras_;
    int mark_ = -1;  // 0-based in the surface
    LineIndex index_;
    std::map<int, LineLayout> lines_;  // laid out, by number; dropped from a change on
    int linesLaidOut_ = 0;
    struct {
        int line = 0;
        int width = 0;  // of the content with it; 0: none was wider than had been known
    } widestPainted_;
    int fontSize_ = 0;  // points; of the statements
    int lineHeight_ = 1;
    int ascent_ = 1;
    LineStyle style_;

    int anchor_ = 0;  // bytes of the surface; the selection lies between it and the caret
    int caret_ = 0;
    ProofNews news_;
    double goalX_ = -1;  // where up and down want to keep the caret; below 0: where it stands
    bool caretShown_ = false;
    QBasicTimer blink_;
    QBasicTimer autoScroll_;  // runs while a drag is above or below the viewport
    QBasicTimer offer_;       // runs until the user has settled on a selection

    bool pressed_ = false;      // the left button is down since a press on the display
    bool dragging_ = false;     // and the pointer has been moved
    bool secondPress_ = false;  // that press was the second of a double click
    QPoint pressPlace_;
    int pressBoundary_ = 0;
    int formsAtPress_ = 0;
    int wheelTurn_ = 0;  // with Ctrl, towards the next step; in the toolkit's units
};

}  // namespace tessaryn
