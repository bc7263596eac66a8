#include "desktop/ProofNews.h"

#include <QAccessible>
#include <algorithm>

#include "desktop/Announcements.h"
#include "desktop/ProofDisplay.h"
#include "text/TextSteps.h"

namespace tessaryn {

namespace {

constexpr int LongestSaid = 2000;   // bytes
constexpr int LongestTold = 10000;  // units

}  // namespace

void ProofNews::ContentChanged(ProofDisplay& display, const SurfaceChange& change, int before) {
    if (!QAccessible::isActive()) return;
    const std::string& text = display.Box().GetText();
    const LineIndex& lines = display.Lines();
    // Whole lines, so that nothing is cut between the bytes of a character or of a line end.
    const int first = lines.Start(lines.LineAt(change.start));
    const int line = lines.LineAt(change.start + change.inserted);
    int last = change.start + change.inserted;
    if (last != lines.Start(line)) {
        last = line + 1 < lines.Count() ? lines.Start(line + 1) : display.Box().TextLength();
    }
    const int start = lines.UnitAt(text, first);
    const int inserted = lines.UnitAt(text, last) - start;
    // Of what stood there before, no tool knows more than what it has had counted.
    const int removed = std::max(0, before - (lines.Units(text) - inserted));
    // The toolkit's own boxes don't keep what was removed either: blanks stand for it.
    const QString oldText(removed, QLatin1Char(' '));
    // So they do for what is too long for anyone to hear: formatting all of a long proof takes half
    // a second, and a tool asks for what it reads.
    const QString newText = inserted > LongestTold ? QString(inserted, QLatin1Char(' '))
                                                   : ReadText(display.Box(), first, last);
    if (removed == 0) {
        QAccessibleTextInsertEvent event(&display, start, newText);
        QAccessible::updateAccessibility(&event);
    } else if (inserted == 0) {
        QAccessibleTextRemoveEvent event(&display, start, oldText);
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleTextUpdateEvent event(&display, start, oldText, newText);
        QAccessible::updateAccessibility(&event);
    }
}

void ProofNews::CaretMoved(ProofDisplay& display) {
    if (!QAccessible::isActive()) return;
    const std::string& text = display.Box().GetText();
    const int anchor = display.Lines().UnitAt(text, display.Anchor());
    const int caret = display.Lines().UnitAt(text, display.Caret());
    if (anchor == anchor_ && caret == caret_) return;
    const bool selects = anchor != caret || anchor_ != caret_;
    anchor_ = anchor;
    caret_ = caret;
    if (selects) {
        QAccessibleTextSelectionEvent event(&display, std::min(anchor, caret),
                                            std::max(anchor, caret));
        event.setCursorPosition(caret);
        QAccessible::updateAccessibility(&event);
    }
    QAccessibleTextCursorEvent event(&display, caret);
    QAccessible::updateAccessibility(&event);
}

// A blank line sets a block off from the next.
void ProofNews::CommandDone(ProofDisplay& display) {
    if (!QAccessible::isActive() || !display.isVisible()) return;
    const std::string& text = display.Box().GetText();
    const LineIndex& lines = display.Lines();
    const auto blank = [&](int line) { return lines.Start(line) == lines.End(text, line); };
    const int caret = lines.LineAt(display.Caret());
    int first = caret;
    while (first > 0 && !blank(first - 1) &&
           lines.Start(caret) - lines.Start(first) < LongestSaid) {
        --first;
    }
    const int start = lines.Start(first);
    int last = caret;
    while (last + 1 < lines.Count() && !blank(last + 1) &&
           lines.Start(last) - start < LongestSaid) {
        ++last;
    }
    const int end = CharStart(text, std::min(lines.End(text, last), start + LongestSaid));
    Announce(ReadText(display.Box(), start, end).simplified());
}

}  // namespace tessaryn
