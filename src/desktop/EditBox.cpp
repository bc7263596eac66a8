#include "desktop/EditBox.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QDragLeaveEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/Clipboard.h"
#include "desktop/Desktop.h"
#include "desktop/PaintedText.h"
#include "desktop/Sheet.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

constexpr int CaretWidth = 2;          // pixels
constexpr int BeginningLength = 2000;  // bytes, and up to the end of the line
constexpr int LongestCharacter = 100;  // units, marks and all, that one key goes past

// What the editor's document comes to as the content of a surface.
struct EditorContent {
    std::string text;
    std::vector<FormatRun> runs;
    std::vector<int> bytes;  // of the surface at each position of the document
};

void AppendRun(EditorContent& content, int length, const CharFormat& format) {
    const int start = static_cast<int>(content.text.size()) - length;
    auto& runs = content.runs;
    if (!runs.empty() && runs.back().format == format) {
        runs.back().length += length;
    } else if (length > 0) {
        runs.push_back({start, length, format});
    }
}

void AppendText(EditorContent& content, const QString& shown, const CharFormat& format) {
    const auto before = content.text.size();
    for (qsizetype unit = 0; unit < shown.size();) {
        const bool pair = shown[unit].isHighSurrogate() && unit + 1 < shown.size();
        const qsizetype length = pair ? 2 : 1;
        const int byte = static_cast<int>(content.text.size());
        content.bytes.insert(content.bytes.end(), static_cast<std::size_t>(length), byte);
        if (shown[unit] == QChar::LineSeparator) {
            content.text += "\r\n";
        } else {
            content.text += StoredText(shown.mid(unit, length), format.Font);
        }
        unit += length;
    }
    AppendRun(content, static_cast<int>(content.text.size() - before), format);
}

EditorContent ContentOf(const QTextDocument& document) {
    EditorContent content;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.position() > 0) {
            content.bytes.push_back(static_cast<int>(content.text.size()));
            content.text += "\r\n";
            const auto& runs = content.runs;
            AppendRun(content, 2, runs.empty() ? FormatOf(block.charFormat()) : runs.back().format);
        }
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment fragment = part.fragment();
            AppendText(content, fragment.text(), FormatOf(fragment.charFormat()));
        }
    }
    content.bytes.push_back(static_cast<int>(content.text.size()));
    return content;
}

}  // namespace

EditBox::EditBox(RichTextBox& box, QWidget* parent) : QTextEdit(parent), box_(box) {
    setAcceptRichText(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setFont(FontOf({}));
    MakeSheet(*this);
    if (!box.MultiLine) {
        setLineWrapMode(NoWrap);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFixedHeight(fontMetrics().lineSpacing() * 2);
    }
    shown_ = box.ContentRevision() + 1;  // so that the first Sync shows it
    Sync();
}

// --- surface and editor

int EditBox::UnitAt(int byte) const {
    const auto found = std::lower_bound(bytes_.begin(), bytes_.end(), byte);
    return static_cast<int>(std::min(found, bytes_.end() - 1) - bytes_.begin());
}

void EditBox::Pull() {
    if (document()->revision() != revision_) return LoadContent();
    const QTextCursor cursor = textCursor();
    const int start = bytes_[static_cast<std::size_t>(cursor.selectionStart())];
    const int end = bytes_[static_cast<std::size_t>(cursor.selectionEnd())];
    if (start == box_.GetSelStart() && end - start == box_.GetSelLength()) return;
    box_.SelStart = start;
    box_.SelLength = end - start;
}

void EditBox::LoadContent() {
    EditorContent content = ContentOf(*document());
    const QTextCursor cursor = textCursor();
    bytes_ = std::move(content.bytes);
    const int start = bytes_[static_cast<std::size_t>(cursor.selectionStart())];
    const int end = bytes_[static_cast<std::size_t>(cursor.selectionEnd())];
    box_.LoadFromEditor(std::move(content.text), content.runs, box_.TextLength() - tail_, start,
                        end - start);
    revision_ = document()->revision();
    shown_ = box_.ContentRevision();
}

void EditBox::Sync() {
    if (isReadOnly() != box_.ReadOnly) {
        setReadOnly(box_.ReadOnly);
        if (box_.ReadOnly) {
            setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
            if (!hasFocus()) setCursorWidth(0);
        }
    }
    const int end = box_.GetSelStart() + box_.GetSelLength();
    if (shown_ != box_.ContentRevision() || end > bytes_.back()) ShowContent();
    Select(UnitAt(box_.GetSelStart()), UnitAt(end));
    if (textCursor().hasSelection()) return;
    const CharFormat typed = box_.InsertionFormat();
    if (FormatOf(currentCharFormat()) != typed) setCurrentCharFormat(TextFormat(typed));
}

// All but a few lines of a long text; no more than one is ever in sight.
int EditBox::EndOfBeginning() const {
    const std::string& text = box_.GetText();
    const int caret = box_.GetSelStart() + box_.GetSelLength();
    const std::size_t second = text.find('\n') + 1;
    if (box_.MultiLine || caret > BeginningLength / 2 || second == 0 || QAccessible::isActive()) {
        return box_.TextLength();
    }
    const auto end = text.find("\r\n", std::max<std::size_t>(second, BeginningLength));
    return end == text.npos ? box_.TextLength() : static_cast<int>(end);
}

void EditBox::ShowContent() {
    Show(EndOfBeginning());
}

void EditBox::ShowAll() {
    if (tail_ == 0) return;
    Pull();
    Show(box_.TextLength());
    Sync();
}

void EditBox::Show(int end) {
    const PaintedText painted = PaintText(box_, 0, end);
    const int scrolled = verticalScrollBar()->value();
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.select(QTextCursor::Document);
    cursor.removeSelectedText();
    cursor.setCharFormat(TextFormat(box_.FormatAt(0)));
    for (const auto& span : painted.spans) {
        cursor.insertText(painted.text.mid(span.start, span.length), TextFormat(span.format));
    }
    cursor.endEditBlock();
    bytes_ = painted.bytes;
    tail_ = box_.TextLength() - end;
    revision_ = document()->revision();
    shown_ = box_.ContentRevision();
    verticalScrollBar()->setValue(scrolled);
}

void EditBox::Select(int startUnit, int endUnit) {
    QTextCursor cursor = textCursor();
    if (cursor.selectionStart() == startUnit && cursor.selectionEnd() == endUnit) return;
    cursor.setPosition(startUnit);
    cursor.setPosition(endUnit, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    ensureCursorVisible();
}

// --- focus: the toolkit leaves the caret of a read-only editor standing when the focus goes

void EditBox::focusInEvent(QFocusEvent* event) {
    setCursorWidth(CaretWidth);
    QTextEdit::focusInEvent(event);
}

void EditBox::focusOutEvent(QFocusEvent* event) {
    QTextEdit::focusOutEvent(event);
    if (isReadOnly()) setCursorWidth(0);
}

// --- keyboard

// Control keys belong to the box, ahead of menu shortcuts.
bool EditBox::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto modifiers = static_cast<QKeyEvent*>(event)->modifiers();
        if ((modifiers & (Qt::ControlModifier | Qt::AltModifier)) == Qt::ControlModifier) {
            event->accept();
            return true;
        }
    }
    return QTextEdit::event(event);
}

// What types, deletes or goes one step, and the keys that do nothing by themselves.
bool EditBox::StaysInBeginning(const QKeyEvent& event) const {
    switch (event.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
            return true;
        case Qt::Key_Down:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return false;
        default:
            break;
    }
    const bool plain = (event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    const int room = document()->characterCount() - textCursor().selectionEnd();
    return plain && room > LongestCharacter;
}

void EditBox::keyPressEvent(QKeyEvent* event) {
    if (!StaysInBeginning(*event)) ShowAll();
    QTextEdit::keyPressEvent(event);
    SendIfEdited();
}

// What an input method or a dead key composes is a typed character like any other.
void EditBox::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty()) {
        KeyEvent key;
        key.text = event->commitString().toStdString();
        if (DispatchKey(box_.Parent, &box_, key)) event->setCommitString({});
    }
    QTextEdit::inputMethodEvent(event);
    SendIfEdited();
}

void EditBox::SendIfEdited() {
    if (document()->revision() == revision_) return;
    Dispatch([this] {
        if (box_.Change) box_.Change();
    });
}

// --- mouse

// Puts the caret ahead of the character under the pointer, so that a click means that character.
void EditBox::MoveToCharacterAt(const QPoint& place) {
    QTextCursor cursor = cursorForPosition(place);
    if (cursorRect(cursor).left() > place.x() && !cursor.atBlockStart()) {
        cursor.movePosition(QTextCursor::Left);
    }
    setTextCursor(cursor);
}

void EditBox::wheelEvent(QWheelEvent* event) {
    ShowAll();
    QTextEdit::wheelEvent(event);
}

void EditBox::mousePressEvent(QMouseEvent* event) {
    ShowAll();
    const QPoint place = event->position().toPoint();
    const bool right = event->button() == Qt::RightButton;
    if (right && !textCursor().hasSelection()) setTextCursor(cursorForPosition(place));
    QTextEdit::mousePressEvent(event);
    const bool plain = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    if (plain && box_.Click) MoveToCharacterAt(place);
    if (!box_.MouseDown) return;
    Dispatch([&] { box_.MouseDown(right ? MouseButton::Right : MouseButton::Left); });
}

void EditBox::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0) return QTextEdit::mouseMoveEvent(event);
    // Beyond the right edge the selection grows by itself, and what it has won stays.
    const QPoint place = event->position().toPoint();
    const QTextCursor there = cursorForPosition(place);
    const bool won = place.x() >= viewport()->width() &&
                     textCursor().position() > there.position() &&
                     textCursor().block() == there.block();
    if (!won) QTextEdit::mouseMoveEvent(event);
    // The move may have begun a drag, which is over by now. What was dragged elsewhere stays here.
    if (document()->revision() != revision_) ShowContent();
    const bool dragged = (QGuiApplication::mouseButtons() & Qt::LeftButton) == 0;
    if (box_.MouseMove && !dragged) Dispatch(box_.MouseMove);
}

void EditBox::mouseReleaseEvent(QMouseEvent* event) {
    QTextEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) {
        Dispatch([this] { SendRelease(box_); });
    } else if (event->button() == Qt::RightButton && box_.MouseUp) {
        Dispatch([this] { box_.MouseUp(MouseButton::Right); });
    }
}

void EditBox::mouseDoubleClickEvent(QMouseEvent* event) {
    QTextEdit::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && box_.DblClick) Dispatch(box_.DblClick);
}

// The right button's menu comes with its release; the menu key's comes here.
void EditBox::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() == QContextMenuEvent::Mouse || !box_.MouseUp) return;
    Dispatch([this] { box_.MouseUp(MouseButton::Right); });
}

// --- text from and for elsewhere: also the toolkit's own keys, the middle button and drags

QMimeData* EditBox::createMimeDataFromSelection() const {
    const_cast<EditBox*>(this)->Pull();  // NOLINT: no change that anyone could see
    return MimeDataOf(SelectionOf(box_));
}

bool EditBox::canInsertFromMimeData(const QMimeData* source) const {
    return HoldsText(*source);
}

void EditBox::insertFromMimeData(const QMimeData* source) {
    const Clip content = ClipOf(*source);
    Dispatch([&] { SendPaste(box_, content); });
}

// What comes from elsewhere is a copy.
void EditBox::dropEvent(QDropEvent* event) {
    QDragLeaveEvent over;
    QTextEdit::dragLeaveEvent(&over);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    const bool within = event->source() == viewport();
    const Clip content = ClipOf(*event->mimeData());
    const QTextCursor place = cursorForPosition(event->position().toPoint());
    Dispatch([&] {
        const int to = bytes_[static_cast<std::size_t>(place.position())];
        if (within) return MoveSelection(box_, to);
        box_.SelStart = to;
        SendPaste(box_, content);
    });
}

}  // namespace tessaryn
