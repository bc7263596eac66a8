#include "desktop/AccessibleProof.h"

#include <QTextBoundaryFinder>
#include <algorithm>

#include "desktop/PaintedText.h"

namespace tessaryn {

namespace {

QAccessibleInterface* InterfaceOf(const QString&, QObject* object) {
    auto* display = dynamic_cast<ProofDisplay*>(object);
    return display == nullptr ? nullptr : new AccessibleProof(*display);
}

QString AttributesOf(const CharFormat& format) {
    const QFont font = FontOf(format);
    const QColor colour = QColor::fromRgb(format.Color);
    return QStringLiteral("font-family:\"%1\";font-size:%2pt;font-weight:%3;color:rgb(%4,%5,%6);")
        .arg(font.family())
        .arg(font.pointSize())
        .arg(QLatin1String(format.Bold ? "bold" : "normal"))
        .arg(colour.red())
        .arg(colour.green())
        .arg(colour.blue());
}

}  // namespace

AccessibleProof::AccessibleProof(ProofDisplay& display)
    : QAccessibleWidget(&display, QAccessible::Document) {}

void AccessibleProof::Install() {
    static const bool installed = (QAccessible::installFactory(InterfaceOf), true);
    Q_UNUSED(installed)
}

QAccessible::State AccessibleProof::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = state.multiLine = state.selectableText = true;
    return state;
}

void* AccessibleProof::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

// --- offsets

// A tool may ask in the midst of a command.
ProofDisplay& AccessibleProof::Display() const {
    auto& display = static_cast<ProofDisplay&>(*widget());
    if (display.TakeContent()) display.viewport()->update();
    return display;
}

int AccessibleProof::ByteAt(int offset) const {
    const ProofDisplay& display = Display();
    return display.Lines().ByteAt(display.Box().GetText(), offset);
}

int AccessibleProof::UnitAt(int byte) const {
    const ProofDisplay& display = Display();
    return display.Lines().UnitAt(display.Box().GetText(), byte);
}

int AccessibleProof::characterCount() const {
    const ProofDisplay& display = Display();
    return display.Lines().Units(display.Box().GetText());
}

AccessibleProof::Range AccessibleProof::LineAt(int offset) const {
    const LineIndex& lines = Display().Lines();
    const int line = lines.LineAt(ByteAt(offset));
    const bool last = line + 1 == lines.Count();
    return {UnitAt(lines.Start(line)), last ? characterCount() : UnitAt(lines.Start(line + 1))};
}

// --- text

QString AccessibleProof::text(int startOffset, int endOffset) const {
    return ReadText(Display().Box(), ByteAt(startOffset), ByteAt(endOffset));
}

// The part of the text that an offset lies in; no part goes over the end of a line.
AccessibleProof::Range AccessibleProof::Around(int offset,
                                               QAccessible::TextBoundaryType type) const {
    if (type == QAccessible::NoBoundary) return {0, characterCount()};
    const Range line = LineAt(offset);
    if (type == QAccessible::LineBoundary || type == QAccessible::ParagraphBoundary) return line;
    if (line.start == line.end) return line;
    auto kind = QTextBoundaryFinder::Grapheme;
    if (type == QAccessible::WordBoundary) kind = QTextBoundaryFinder::Word;
    if (type == QAccessible::SentenceBoundary) kind = QTextBoundaryFinder::Sentence;
    QTextBoundaryFinder finder(kind, text(line.start, line.end));
    finder.setPosition(offset - line.start);
    const auto end = finder.toNextBoundary();
    if (end < 0) return {offset, offset};
    const auto start = finder.toPreviousBoundary();
    return {line.start + static_cast<int>(start), line.start + static_cast<int>(end)};
}

QString AccessibleProof::Give(const Range& range, int* start, int* end) const {
    *start = range.start;
    *end = range.end;
    return text(range.start, range.end);
}

QString AccessibleProof::textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                      int* end) const {
    return Give(Around(offset < 0 ? characterCount() : offset, type), start, end);
}

QString AccessibleProof::textBeforeOffset(int offset, QAccessible::TextBoundaryType type,
                                          int* start, int* end) const {
    const Range here = Around(offset < 0 ? characterCount() : offset, type);
    return Give(here.start > 0 ? Around(here.start - 1, type) : Range{0, 0}, start, end);
}

QString AccessibleProof::textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                                         int* end) const {
    const Range here = Around(offset < 0 ? characterCount() : offset, type);
    const int count = characterCount();
    return Give(here.end < count ? Around(here.end, type) : Range{count, count}, start, end);
}

QString AccessibleProof::attributes(int offset, int* start, int* end) const {
    *start = *end = offset;
    const int byte = ByteAt(offset);
    const Range line = LineAt(offset);
    for (const FormatRun& run : Display().Box().RunsIn(ByteAt(line.start), ByteAt(line.end))) {
        if (byte >= run.start + run.length) continue;
        *start = UnitAt(run.start);
        *end = UnitAt(run.start + run.length);
        return AttributesOf(run.format);
    }
    return {};
}

// --- caret and selection

int AccessibleProof::cursorPosition() const {
    return UnitAt(Display().Caret());
}

void AccessibleProof::setCursorPosition(int position) {
    setSelection(0, position, position);
}

int AccessibleProof::selectionCount() const {
    return Display().Caret() == Display().Anchor() ? 0 : 1;
}

void AccessibleProof::selection(int, int* start, int* end) const {
    const int caret = cursorPosition();
    const int anchor = UnitAt(Display().Anchor());
    *start = std::min(caret, anchor);
    *end = std::max(caret, anchor);
}

void AccessibleProof::setSelection(int index, int start, int end) {
    if (index == 0) Display().Select(ByteAt(start), ByteAt(end));
}

void AccessibleProof::removeSelection(int index) {
    if (index == 0) setCursorPosition(cursorPosition());
}

// --- places on the screen

QRect AccessibleProof::characterRect(int offset) const {
    ProofDisplay& display = Display();
    const int byte = ByteAt(offset);
    QRect place = display.CaretRect(byte);
    const bool pair = ByteAt(offset + 1) == byte;  // of surrogates
    const QRect next = display.CaretRect(ByteAt(offset + (pair ? 2 : 1)));
    if (next.top() == place.top() && next.left() > place.left()) place.setRight(next.left() - 1);
    return {display.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

int AccessibleProof::offsetAtPoint(const QPoint& point) const {
    ProofDisplay& display = Display();
    const QPoint place = display.viewport()->mapFromGlobal(point);
    if (!display.viewport()->rect().contains(place)) return -1;
    return UnitAt(display.CharacterAt(place));
}

void AccessibleProof::scrollToSubstring(int start, int end) {
    Display().EnsureVisible(ByteAt(end));
    Display().EnsureVisible(ByteAt(start));
}

}  // namespace tessaryn
