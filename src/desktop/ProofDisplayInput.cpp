// Mouse and keyboard of the proof display.
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cstdlib>

#include "desktop/Clipboard.h"
#include "desktop/Desktop.h"
#include "desktop/ProofDisplay.h"
#include "platform/Events.h"

namespace tessaryn {

namespace {

constexpr int DragDistance = 4;      // pixels that the pointer may shake during a click
constexpr int AutoScrollPause = 40;  // milliseconds
constexpr int SettlePause = 100;     // milliseconds
constexpr int WheelStep = 120;       // what one step of a wheel is in the toolkit's units

}  // namespace

// --- caret and selection

void ProofDisplay::Select(int anchor, int caret) {
    anchor_ = anchor;
    caret_ = caret;
    box_.SelStart = std::min(anchor, caret);
    box_.SelLength = std::max(anchor, caret) - std::min(anchor, caret);
    box_.TakePlacesToShow();
    EnsureVisible(caret_);
    offer_.start(SettlePause, this);
    RestartCaret();
    viewport()->update();
    news_.CaretMoved(*this);
}

void ProofDisplay::MoveCaret(int position, bool extend) {
    goalX_ = -1;
    Select(extend ? anchor_ : position, position);
}

void ProofDisplay::MoveByLines(int lines, bool extend) {
    const int from = index_.LineAt(caret_);
    const int to = std::clamp(from + lines, 0, index_.Count() - 1);
    const double x = goalX_ >= 0 ? goalX_ : LaidOut(from).XAt(caret_);
    if (to != from) MoveCaret(LaidOut(to).ByteAt(x), extend);
    goalX_ = x;
}

int ProofDisplay::Next(int position, Unit unit) {
    const int number = index_.LineAt(position);
    if (position >= index_.End(box_.GetText(), number)) {
        return number + 1 < index_.Count() ? index_.Start(number + 1) : position;
    }
    const auto mode = unit == Unit::Word ? QTextLayout::SkipWords : QTextLayout::SkipCharacters;
    return LaidOut(number).Next(position, mode);
}

int ProofDisplay::Previous(int position, Unit unit) {
    const int number = index_.LineAt(position);
    if (position <= index_.Start(number)) {
        return number > 0 ? index_.End(box_.GetText(), number - 1) : position;
    }
    const auto mode = unit == Unit::Word ? QTextLayout::SkipWords : QTextLayout::SkipCharacters;
    return LaidOut(number).Previous(position, mode);
}

// --- keyboard

// Each new statement leaves the caret behind its annotation, where nothing is hit. A person who
// presses Enter there means that statement: step back onto it.
void ProofDisplay::LeaveBlockEnd() {
    if (box_.SelLength > 0 || caret_ == 0) return;
    const std::string& text = box_.GetText();
    const auto at = static_cast<std::size_t>(caret_);
    if (text.compare(at, 4, "\r\n\r\n") == 0 && text[at - 1] != '\n') MoveCaret(caret_ - 1, false);
}

void ProofDisplay::keyPressEvent(QKeyEvent* event) {
    const bool control = (event->modifiers() & Qt::ControlModifier) != 0;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        LeaveBlockEnd();
        if (control) {
            DoubleClickAtCaret();
        } else {
            Dispatch([this] { SendRelease(box_); });
        }
    } else if (event->matches(QKeySequence::SelectAll)) {
        Select(0, box_.TextLength());
    } else if (!MoveByKey(*event)) {
        event->ignore();
    }
}

bool ProofDisplay::MoveByKey(const QKeyEvent& event) {
    if ((event.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0) return false;
    const bool extend = (event.modifiers() & Qt::ShiftModifier) != 0;
    const bool control = (event.modifiers() & Qt::ControlModifier) != 0;
    const int line = index_.LineAt(caret_);
    const int page = std::max(1, viewport()->height() / lineHeight_ - 1);
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
            return MoveSideways(event.key(), control ? Unit::Word : Unit::Character, extend);
        case Qt::Key_Home:
            MoveCaret(control ? 0 : index_.Start(line), extend);
            return true;
        case Qt::Key_End:
            MoveCaret(control ? box_.TextLength() : index_.End(box_.GetText(), line), extend);
            return true;
        case Qt::Key_Up:
        case Qt::Key_Down:
            MoveByLines(event.key() == Qt::Key_Up ? -1 : 1, extend);
            return true;
        case Qt::Key_PageUp:
        case Qt::Key_PageDown: {
            const int lines = event.key() == Qt::Key_PageUp ? -page : page;
            QScrollBar* bar = verticalScrollBar();
            bar->setValue(bar->value() + lines * lineHeight_);
            MoveByLines(lines, extend);
            return true;
        }
        default:
            return false;
    }
}

bool ProofDisplay::MoveSideways(int key, Unit unit, bool extend) {
    const bool left = key == Qt::Key_Left;
    if (!extend && anchor_ != caret_ && unit == Unit::Character) {
        MoveCaret(left ? std::min(anchor_, caret_) : std::max(anchor_, caret_), false);
    } else {
        MoveCaret(left ? Previous(caret_, unit) : Next(caret_, unit), extend);
    }
    return true;
}

void ProofDisplay::DoubleClickAtCaret() {
    Dispatch([this] { SendDoubleClick(box_, caret_); });
}

// --- mouse

void ProofDisplay::mousePressEvent(QMouseEvent* event) {
    const QPoint place = event->position().toPoint();
    if (event->button() == Qt::LeftButton) {
        pressed_ = true;
        dragging_ = secondPress_ = false;
        pressPlace_ = place;
        pressBoundary_ = BoundaryAt(place);
        formsAtPress_ = FormsShown;
        // A click means the character under the pointer, a drag the boundaries next to it.
        const bool extend = (event->modifiers() & Qt::ShiftModifier) != 0;
        MoveCaret(extend ? pressBoundary_ : CharacterAt(place), extend);
        if (extend) pressBoundary_ = anchor_;
    }
    if (!box_.MouseDown) return;
    if (event->button() == Qt::LeftButton) {
        Dispatch([this] { box_.MouseDown(MouseButton::Left); });
    } else if (event->button() == Qt::RightButton) {
        Dispatch([this] { box_.MouseDown(MouseButton::Right); });
    }
}

void ProofDisplay::mouseMoveEvent(QMouseEvent* event) {
    if (!pressed_ || secondPress_ || (event->buttons() & Qt::LeftButton) == 0) return;
    const QPoint place = event->position().toPoint();
    if (!dragging_ && (place - pressPlace_).manhattanLength() < DragDistance) return;
    dragging_ = true;
    DragTo(place);
    const bool outside = place.y() < 0 || place.y() >= viewport()->height();
    if (!outside) {
        autoScroll_.stop();
    } else if (!autoScroll_.isActive()) {
        autoScroll_.start(AutoScrollPause, this);
    }
    if (box_.MouseMove) Dispatch(box_.MouseMove);
}

// Beyond the right edge the selection grows by itself, and what it has won stays.
void ProofDisplay::DragTo(const QPoint& place) {
    const int right = viewport()->width() - 1;
    const int position = BoundaryAt({std::min(place.x(), right), place.y()});
    const bool sameLine = index_.LineAt(position) == index_.LineAt(caret_);
    if (place.x() >= right && sameLine && caret_ > position) return;
    goalX_ = -1;
    Select(pressBoundary_, position);
}

void ProofDisplay::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::RightButton) {
        Dispatch([this] {
            if (box_.MouseUp) box_.MouseUp(MouseButton::Right);
        });
    }
    if (event->button() != Qt::LeftButton || !pressed_) return;
    // All of this comes first: what the click opens runs events of its own.
    const bool second = secondPress_;
    pressed_ = dragging_ = secondPress_ = false;
    autoScroll_.stop();
    offer_.start(SettlePause, this);
    Dispatch([this, second] {
        if (!second) {
            SendRelease(box_);
        } else if (box_.MouseUp) {
            box_.MouseUp(MouseButton::Left);
        }
    });
}

void ProofDisplay::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || FormsShown != formsAtPress_) {
        return mousePressEvent(event);
    }
    pressed_ = secondPress_ = true;
    dragging_ = false;
    pressPlace_ = event->position().toPoint();
    pressBoundary_ = BoundaryAt(pressPlace_);
    Dispatch([this] {
        if (box_.DblClick) box_.DblClick();
    });
}

void ProofDisplay::wheelEvent(QWheelEvent* event) {
    const bool zooms = (event->modifiers() & Qt::ControlModifier) != 0 && extras_.zoom;
    if (!zooms) return QAbstractScrollArea::wheelEvent(event);
    event->accept();
    if (pressed_) return;
    const int turn = event->angleDelta().y();
    if ((turn > 0) != (wheelTurn_ > 0)) wheelTurn_ = 0;
    wheelTurn_ += turn;
    for (; std::abs(wheelTurn_) >= WheelStep; wheelTurn_ -= wheelTurn_ > 0 ? WheelStep : -WheelStep)
        ZoomAt(event->position(), wheelTurn_ > 0);
}

// What lies under the pointer stays there, and the line starts stay in sight.
void ProofDisplay::ZoomAt(const QPointF& place, bool larger) {
    QScrollBar* vertical = verticalScrollBar();
    QScrollBar* horizontal = horizontalScrollBar();
    const double lines = (place.y() + vertical->value() - Margin) / lineHeight_;
    const double columns = (place.x() + horizontal->value() - Margin) / style_.columnWidth;
    const bool fromTheLeft = horizontal->value() == 0;
    extras_.zoom(larger);
    vertical->setValue(Round(lines * lineHeight_ + Margin - place.y()));
    const double left = columns * style_.columnWidth + Margin - place.x();
    horizontal->setValue(fromTheLeft ? 0 : Round(left));
}

// The right button's menu comes with its release; the menu key's comes here.
void ProofDisplay::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse || !box_.MouseUp) return;
    Dispatch([this] { box_.MouseUp(MouseButton::Right); });
}

// --- focus and time

void ProofDisplay::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    RestartCaret();
    viewport()->update();
}

void ProofDisplay::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    blink_.stop();
    viewport()->update();
}

void ProofDisplay::timerEvent(QTimerEvent* event) {
    if (event->timerId() == blink_.timerId()) {
        caretShown_ = !caretShown_;
        viewport()->update(CaretRect(caret_));
    } else if (event->timerId() == offer_.timerId()) {
        offer_.stop();
        if (box_.SelLength > 0) OfferSelection(box_);
    } else if (event->timerId() == autoScroll_.timerId()) {
        const QPoint place = viewport()->mapFromGlobal(QCursor::pos());
        const int distance = place.y() < 0 ? place.y() : place.y() - viewport()->height();
        const int lines = distance / (2 * lineHeight_) + (distance < 0 ? -1 : 1);
        verticalScrollBar()->setValue(verticalScrollBar()->value() + lines * lineHeight_);
        DragTo({place.x(), std::clamp(place.y(), 0, viewport()->height() - 1)});
    } else {
        QAbstractScrollArea::timerEvent(event);
    }
}

}  // namespace tessaryn
