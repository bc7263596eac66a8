// The proof as a text for assistive tools, and what is announced to them.
#include <gtest/gtest.h>

#include <QtGui/private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>
#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <random>
#include <string>
#include <vector>

#include "LongProof.h"
#include "ShownForm.h"
#include "desktop/PaintedText.h"
#include "desktop/ProofDisplay.h"
#include "entry/TestParser.h"
#include "mainwindow/Proof.h"
#include "menu/StartProgram.h"
#include "platform/Platform.h"

using namespace tessaryn;

namespace {

// A listener: keeps a copy of a text by the events alone, and what was announced.
struct Listener {
    Listener() {
        heard = this;
        Activate(true);
        QAccessible::installUpdateHandler([](QAccessibleEvent* event) { heard->Hear(*event); });
    }
    ~Listener() {
        QAccessible::installUpdateHandler(nullptr);
        Activate(false);
    }
    // Without a screen, nothing but the platform itself can tell that someone listens.
    static void Activate(bool active) {
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(active);
    }

    void Hear(QAccessibleEvent& event) {
        if (auto* inserted = dynamic_cast<QAccessibleTextInsertEvent*>(&event)) {
            Replace(inserted->changePosition(), {}, inserted->textInserted());
        } else if (auto* removed = dynamic_cast<QAccessibleTextRemoveEvent*>(&event)) {
            Replace(removed->changePosition(), removed->textRemoved(), {});
        } else if (auto* updated = dynamic_cast<QAccessibleTextUpdateEvent*>(&event)) {
            Replace(updated->changePosition(), updated->textRemoved(), updated->textInserted());
        } else if (auto* selected = dynamic_cast<QAccessibleTextSelectionEvent*>(&event)) {
            selection = {selected->selectionStart(), selected->selectionEnd()};
        } else if (auto* moved = dynamic_cast<QAccessibleTextCursorEvent*>(&event)) {
            caret = moved->cursorPosition();
        } else if (event.type() == QAccessible::ObjectShow &&
                   event.accessibleInterface()->role() == QAccessible::Notification) {
            said += event.accessibleInterface()->child(0)->text(QAccessible::Name);
        }
    }

    void Replace(int at, const QString& removed, const QString& inserted) {
        ++changes;
        text.replace(at, removed.size(), inserted);
    }

    // Waits for what is announced behind the present event.
    QString Said() {
        EXPECT_TRUE(QTest::qWaitFor([this] { return !said.isEmpty(); }, 60000));
        return std::exchange(said, {});
    }

    static inline Listener* heard = nullptr;
    QString text;
    int changes = 0;
    int caret = 0;
    std::pair<int, int> selection;
    QString said;
};

// A display as a listener finds it.
struct Read {
    explicit Read(const std::string& content) {
        box.SetText(content);
        display.resize(600, 300);
        display.show();
        display.Sync();
    }

    QAccessibleInterface& Interface() { return *QAccessible::queryAccessibleInterface(&display); }
    QAccessibleTextInterface& Text() { return *Interface().textInterface(); }
    QString All() { return Text().text(0, Text().characterCount()); }

    // Of one of the three questions: what comes back, and from where to where.
    using Question = QString (QAccessibleTextInterface::*)(int, QAccessible::TextBoundaryType, int*,
                                                           int*) const;
    std::string Ask(Question question, int offset, QAccessible::TextBoundaryType type) {
        int start = -1;
        int end = -1;
        const QString found = (Text().*question)(offset, type, &start, &end);
        EXPECT_EQ(Text().text(start, end), found);
        return found.toStdString() + " " + std::to_string(start);
    }

    Form form{"Any"};
    RichTextBox box{form, "RTB"};
    ProofDisplay display{box};
};

}  // namespace

TEST(AccessibleProof, ReadsAsPaintedWithALineEndAsOneCharacter) {
    Read shown("1\tx e S\r\n\t4 \xF0\x9D\x94\xB8\r\n\r\n\xC3\xA9nd");
    shown.box.SetFormat(4, 1, {.Font = "Symbol"});
    shown.box.SetFormat(10, 1, {.Font = "Webdings"});
    shown.box.SetFormat(0, 1, {.Color = Rgb(255, 0, 0), .Bold = true});
    const QString text = shown.All();
    EXPECT_EQ(shown.Interface().role(), QAccessible::Document);
    EXPECT_TRUE(shown.Interface().state().readOnly && shown.Interface().state().multiLine);
    EXPECT_EQ(text.left(9), ToQt("1\tx \xCE\xB5 S\n\t"));
    EXPECT_TRUE(QStringLiteral("\u25B6\u25BA").contains(text[9]));
    EXPECT_EQ(text.mid(10), ToQt(" \xF0\x9D\x94\xB8\n\n\xC3\xA9nd"));

    using Interface = QAccessibleTextInterface;
    const Read::Question before = &Interface::textBeforeOffset;
    const Read::Question at = &Interface::textAtOffset;
    const Read::Question after = &Interface::textAfterOffset;
    const struct {
        Read::Question question;
        int offset;
        QAccessible::TextBoundaryType type;
        const char* answer;  // and where it begins
    } rows[] = {
        {at, 7, QAccessible::LineBoundary, "1\tx \xCE\xB5 S\n 0"},
        {before, 15, QAccessible::LineBoundary, "\n 14"},
        {after, 14, QAccessible::ParagraphBoundary, "\xC3\xA9nd 15"},
        {after, 15, QAccessible::LineBoundary, " 18"},
        {before, 0, QAccessible::LineBoundary, " 0"},
        {at, -1, QAccessible::LineBoundary, "\xC3\xA9nd 15"},
        {after, 7, QAccessible::CharBoundary, "\t 8"},
        {at, 12, QAccessible::CharBoundary, "\xF0\x9D\x94\xB8 11"},
        {at, 18, QAccessible::CharBoundary, " 18"},
        {at, 16, QAccessible::WordBoundary, "\xC3\xA9nd 15"},
        {before, 15, QAccessible::WordBoundary, "\n 14"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(shown.Ask(row.question, row.offset, row.type), row.answer)
            << "offset " << row.offset << " type " << row.type;
    }
    int start = 0;
    int end = 0;
    const QString attributes = shown.Text().attributes(0, &start, &end);
    EXPECT_TRUE(attributes.contains(QStringLiteral("font-weight:bold;color:rgb(255,0,0)")));
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 1);
}

TEST(AccessibleProof, PlacesOnTheScreenAreThoseOfThePaintedCharacters) {
    std::string text = "1\tx \xC3\xA9 S\r\n";
    for (int line = 0; line < 100; ++line) text += "next\r\n";
    Read shown(text);
    QAccessibleTextInterface& read = shown.Text();
    for (const int offset : {0, 1, 4, 5, 9}) {
        const QRect place = read.characterRect(offset);
        EXPECT_GT(place.width(), 4);
        EXPECT_EQ(read.offsetAtPoint(place.center()), offset);
    }
    EXPECT_EQ(read.offsetAtPoint(shown.display.mapToGlobal(QPoint(-5, -5))), -1);
    const QRect viewport(shown.display.viewport()->mapToGlobal(QPoint()),
                         shown.display.viewport()->size());
    const int last = read.characterCount() - 3;
    EXPECT_FALSE(viewport.contains(read.characterRect(last)));
    read.scrollToSubstring(last, last + 1);
    EXPECT_TRUE(viewport.contains(read.characterRect(last)));
}

TEST(AccessibleProof, CaretAndSelectionAreSharedWithTheKeyboard) {
    const Listener listener;
    Read shown("\xC3\xA9\xC3\xA9\r\nab");
    QAccessibleTextInterface& read = shown.Text();
    const auto selection = [&] {
        std::pair<int, int> found;
        read.selection(0, &found.first, &found.second);
        return found;
    };
    QTest::keyClick(&shown.display, Qt::Key_Down);
    EXPECT_EQ(read.cursorPosition(), 3);
    EXPECT_EQ(listener.caret, 3);
    EXPECT_EQ(read.selectionCount(), 0);
    QTest::keyClick(&shown.display, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(listener.selection, std::pair(2, 3));
    EXPECT_EQ(read.selectionCount(), 1);
    EXPECT_EQ(selection(), listener.selection);
    EXPECT_EQ(read.cursorPosition(), 2);
    read.removeSelection(0);
    EXPECT_EQ(listener.selection, std::pair(2, 2));
    read.setSelection(0, 1, 4);
    EXPECT_EQ(shown.box.GetSelText(), "\xC3\xA9\r\na");
    EXPECT_EQ(selection(), std::pair(1, 4));
    read.setCursorPosition(5);
    EXPECT_EQ(shown.box.GetSelStart(), 8);
    EXPECT_EQ(listener.caret, 5);
}

TEST(AccessibleProof, EventsKeepTheCopyOfAListenerTrue) {
    std::mt19937 random(11);
    const auto below = [&](int limit) {
        return std::uniform_int_distribution(0, limit - 1)(random);
    };
    const std::string alphabet[] = {"a", "\r\n", "\t", "\xC3\xA9", "\xF0\x9D\x94\xB8", "e", "\xFF"};
    Listener listener;
    Read shown("first\r\nsecond");
    listener.text = shown.All();
    for (int step = 0; step < 300; ++step) {
        shown.box.SelStart = below(shown.box.TextLength() + 1);
        shown.box.SelLength = below(9);
        std::string inserted;
        for (int i = below(4); i > 0; --i) inserted += alphabet[below(7)];
        shown.box.SelFontName = below(2) == 0 ? "Symbol" : "Courier New";
        if (below(20) == 0) {
            shown.box.SetText(inserted);
        } else {
            shown.box.SelText = inserted;
        }
        if (below(3) == 0) continue;  // two changes in one event
        shown.display.Sync();
        ASSERT_EQ(listener.text, shown.All()) << "step " << step;
        ASSERT_EQ(listener.caret, shown.Text().cursorPosition()) << "step " << step;
    }
    EXPECT_GT(listener.changes, 100);
}

TEST(AccessibleProof, CostsFollowWhatIsReadAndWhatHasChanged) {
    LongProof proof;
    Read shown("");
    proof.Show(shown.box);
    shown.display.Sync();
    EXPECT_LT(proof.formatted, 2) << "nobody listens";
    Listener listener;
    QAccessibleTextInterface& read = shown.Text();
    const int count = read.characterCount();
    EXPECT_EQ(count, LongProof::Statements * (LongProof::Length - 3));
    listener.text = QString(count, QLatin1Char(' '));
    int start = 0;
    int end = 0;
    EXPECT_EQ(read.textAtOffset(count - 5, QAccessible::LineBoundary, &start, &end),
              QStringLiteral("\t\tPremise\n"));
    read.characterRect(count / 2);
    proof.Append("Q\r\n");
    proof.Show(shown.box);
    shown.display.Sync();
    EXPECT_EQ(listener.text.mid(count), QStringLiteral("Q\n"));
    for (auto& block : proof.blocks) ++block.key;
    proof.Show(shown.box);
    shown.display.Sync();
    EXPECT_EQ(listener.text.size(), read.characterCount());
    EXPECT_LT(proof.formatted, 60);
}

TEST(Announcements, TellPromptsNotesMessagesAndNewStatements) {
    StartProgram();
    ShowMainWindow(Proof);
    QApplication::processEvents();
    Listener listener;
    Dispatch([] { SetPrompt("Split:  Click"); });
    EXPECT_TRUE(listener.Said().endsWith(QStringLiteral("Split:  Click")));
    Dispatch([] {
        Beep("No.");
        SetPrompt("No.");
        Proof.RTB.SetText("1\tP\r\n\tPremise\r\n\r\n2\tQ\r\n\tCopy, 1\r\n\r\n");
        Proof.RTB.SelStart = 28;
    });
    EXPECT_EQ(listener.Said(), QStringLiteral("No.\n2 Q Copy, 1")) << "each once";
    ClosedBy(TestParser, [&](QWidget&) {
        Dispatch([] { TestParser.StatusLine.Caption = "Invalid"; });
        EXPECT_EQ(listener.Said(), QStringLiteral("Invalid"));
    });
}
