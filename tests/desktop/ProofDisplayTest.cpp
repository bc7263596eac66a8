#include "desktop/ProofDisplay.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <string>
#include <vector>

#include "LongProof.h"
#include "UserHands.h"
#include "desktop/Desktop.h"
#include "document/Document.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "menu/StartProgram.h"
#include "platform/Events.h"
#include "view/Display.h"
#include "view/PutStmt.h"

using namespace tessaryn;

namespace {

// A surface in a display of its own, with the events that the logic would get.
struct Displayed {
    explicit Displayed(const std::string& text) {
        box.ReadOnly = true;
        box.SetText(text);
        box.Click = [this] { Log("click"); };
        box.DblClick = [this] { Log("double"); };
        box.MouseUp = [this](MouseButton button) {
            events += button == MouseButton::Left ? "up;" : "right up;";
        };
        display.resize(600, 300);
        display.show();
        display.Sync();
    }

    void Log(const std::string& event) {
        events +=
            event + " " + std::to_string(box.SelStart) + "+" + std::to_string(box.SelLength) + ";";
    }

    // As the logic does.
    void ShowPlace(int position, int length = 0) {
        box.SelStart = position;
        box.SelLength = length;
        display.Sync();
    }

    // The middle of a character, `aside` pixels to the right of it.
    QPoint PlaceOf(int position, int aside = 4) {
        return display.CaretRect(position).center() + QPoint(aside, 0);
    }

    void Mouse(void (*act)(QWidget*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int),
               const QPoint& place, Qt::KeyboardModifiers modifiers = {}) {
        act(display.viewport(), Qt::LeftButton, modifiers, place, -1);
    }

    void DragTo(const QPoint& place) {
        QMouseEvent move(QEvent::MouseMove, place, display.viewport()->mapToGlobal(place),
                         Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(display.viewport(), &move);
    }

    Form form{"Any"};
    RichTextBox box{form, "RTB"};
    ProofDisplay display{box};
    std::string events;
};

int At(const std::string& text, const std::string& part) {
    return static_cast<int>(text.find(part));
}

}  // namespace

TEST(ProofDisplay, ClickMeansTheCharacterUnderThePointer) {
    const std::string text =
        "1\tP \xE2\x87\x92 Q\tna\xC3\xAFve e\xCC\x81t\xC3\xA9\r\n\r\n22\tx e S\r\n";
    Displayed shown(text);
    CharFormat symbol;
    symbol.Font = "Symbol";
    const int sign = At(text, " e S") + 1;
    shown.box.SetFormat(sign, 1, symbol);
    shown.display.Sync();
    // Left and right half of: a letter behind a TAB, behind signs of 2 and 3 bytes, behind a
    // combining mark, behind the element sign.
    for (const int position :
         {At(text, "P"), At(text, "Q"), At(text, "ve"), At(text, "t\xC3"), sign, At(text, "S")}) {
        for (const int aside : {1, 7}) {
            shown.events.clear();
            shown.Mouse(QTest::mouseClick, shown.PlaceOf(position, aside));
            EXPECT_EQ(shown.events, "click " + std::to_string(position) + "+0;up;");
        }
    }
    const int lineEnd = At(text, "\r\n");
    shown.Mouse(QTest::mouseClick, shown.PlaceOf(lineEnd, 200));
    EXPECT_EQ(shown.box.GetSelStart(), lineEnd);
}

TEST(ProofDisplay, DragSelectsAndStillSendsTheClick) {
    const std::string text = "1\tP & Q\r\n2\tR\r\n";
    Displayed shown(text);
    shown.Mouse(QTest::mousePress, shown.PlaceOf(2, 2));
    shown.DragTo(shown.PlaceOf(6, 2));
    EXPECT_EQ(shown.events, "");
    shown.Mouse(QTest::mouseRelease, shown.PlaceOf(6, 2));
    EXPECT_EQ(shown.events, "click 2+4;up;");

    // Backwards, and on with the shift key from the same anchor.
    shown.Mouse(QTest::mousePress, shown.PlaceOf(6, 1));
    shown.DragTo(shown.PlaceOf(4, 1));
    shown.Mouse(QTest::mouseRelease, shown.PlaceOf(4, 1));
    EXPECT_EQ(shown.box.GetSelStart(), 4);
    EXPECT_EQ(shown.box.GetSelLength(), 2);
    shown.Mouse(QTest::mouseClick, shown.PlaceOf(2, 1), Qt::ShiftModifier);
    EXPECT_EQ(shown.box.GetSelStart(), 2);
    EXPECT_EQ(shown.box.GetSelLength(), 4);
}

TEST(ProofDisplay, DoubleClickAddsOnlyWhatTheFirstClickLeft) {
    Displayed shown("1\tP & Q\r\n");
    const QPoint place = shown.PlaceOf(4);
    shown.Mouse(QTest::mouseClick, place);
    shown.Mouse(QTest::mouseDClick, place);  // no more than the second press
    shown.Mouse(QTest::mouseRelease, place);
    EXPECT_EQ(shown.events, "click 4+0;up;double 4+0;up;");

    // The first click opened a form: the second press is a click of its own.
    shown.events.clear();
    shown.box.Click = [&shown] {
        ++FormsShown;
        shown.events += "form;";
    };
    shown.Mouse(QTest::mouseClick, place);
    shown.Mouse(QTest::mouseDClick, place);
    shown.Mouse(QTest::mouseRelease, place);
    EXPECT_EQ(shown.events, "form;up;form;up;");
}

// The first click of a double click is a click like any other, and the second press takes it back.
TEST(ProofWindow, ANumberIsToggledAtOnceAndADoubleClickFolds) {
    StartProgram();
    for (RuleMode = Rule::Premise; StmtCount < 3; RuleMode = Rule::Axiom) {
        NewStmtText = "P";
        Parse();
        ASSERT_TRUE(WriteStatement());
    }
    RuleMode = 0;
    EditAt(2).Highlight = false;
    ShowMainWindow(Proof);
    QApplication::processEvents();
    const int number = PositionOf(3, NumberStart(At(3)));
    ClickInProof(number);
    EXPECT_FALSE(At(3).Highlight);
    DoubleClickInProof(number);  // only the second press
    EXPECT_TRUE(At(3).Highlight);
    EXPECT_FALSE(At(2).Visible);
}

// Ctrl with the wheel, what is told where the pointer rests, and the mark of insert mode.
TEST(ProofWindow, ZoomsUnderThePointerTellsAndMarks) {
    StartProgram();
    for (RuleMode = Rule::Premise; StmtCount < 60; RuleMode = Rule::Axiom) {
        NewStmtText = StmtCount == 58 ? "x=" + std::string(300, 'y') : "x=y";
        Parse();
        ASSERT_TRUE(WriteStatement());
    }
    RuleMode = 0;
    ShowMainWindow(Proof);
    QApplication::processEvents();
    ProofDisplay& display = ShownProof();
    display.verticalScrollBar()->setValue(500);
    const QPoint place(90, display.viewport()->height() / 2);
    const int character = display.CharacterAt(place);
    const auto turn = [&](int angle, Qt::KeyboardModifiers keys) {
        QWheelEvent event(place, display.viewport()->mapToGlobal(place), {}, {0, angle}, {}, keys,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(display.viewport(), &event);
        return StmtFontSize;
    };
    EXPECT_EQ(turn(-60, Qt::ControlModifier), 12);
    EXPECT_EQ(turn(-60, Qt::ControlModifier), 10);
    EXPECT_EQ(turn(240, Qt::ControlModifier), 14);
    EXPECT_EQ(turn(120, Qt::ControlModifier), 14);
    EXPECT_TRUE(Proof.optLargeText.Checked);
    EXPECT_EQ(display.Lines().LineAt(display.CharacterAt(place)),
              display.Lines().LineAt(character));
    EXPECT_EQ(turn(120, {}), 14);
    EXPECT_NE(display.CharacterAt(place), character) << "without Ctrl it scrolls";
    QTest::keyClick(&display, Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(StmtFontSize, 12);

    const auto told = [&](int position) {
        display.EnsureVisible(position);
        const QPoint at = PlaceInProof(position);
        QHelpEvent event(QEvent::ToolTip, at, display.viewport()->mapToGlobal(at));
        QApplication::sendEvent(display.viewport(), &event);
        return QToolTip::text().toStdString();
    };
    const int first = PositionOf(1, At(1).StartStmt);
    EXPECT_NE(told(first).find("x is green: "), std::string::npos);
    QTest::keyClick(&display, Qt::Key_Escape);
    EXPECT_FALSE(QuestionsOpen()) << "this Esc was for what is told";
    told(first + 1);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 60000));
    const int last = PositionOf(60, At(60).StartStmt);
    EXPECT_NE(told(last).find("x is green: "), std::string::npos);
    const int wide = PositionOf(59, At(59).StartStmt);
    EXPECT_NE(told(wide + 1).find(std::string(300, 'y')), std::string::npos);

    EXPECT_TRUE(display.MarkRect().isEmpty());
    SendChoose(Proof.optInsert);
    ClickInProof(first);
    EXPECT_NEAR(display.MarkRect().center().y(), display.CaretRect(first).top(), 12);
    SendChoose(Proof.optInsert);
    Dispatch([] {});
    EXPECT_TRUE(display.MarkRect().isEmpty());
}

TEST(ProofDisplay, KeyboardMovesSelectsAndClicks) {
    const std::string text = "1\tP & Q\r\n\r\n2\tR \xC3\xA9\r\n";
    Displayed shown(text);
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&shown.display, key, modifiers);
        return shown.box.GetSelStart();
    };
    EXPECT_EQ(press(Qt::Key_End), 7);
    EXPECT_EQ(press(Qt::Key_Right), 9);  // over CR LF in one step
    EXPECT_EQ(press(Qt::Key_Down), 11);
    EXPECT_EQ(press(Qt::Key_End), 17);
    EXPECT_EQ(press(Qt::Key_Left), 15);  // over both bytes
    EXPECT_EQ(press(Qt::Key_Home, Qt::ControlModifier), 0);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(shown.box.GetSelLength(), 9);
    EXPECT_EQ(press(Qt::Key_Right), 9);  // leaves the selection at its end
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(shown.box.GetSelLength(), static_cast<int>(text.size()));
    press(Qt::Key_X);
    EXPECT_EQ(shown.box.GetText(), text);
    EXPECT_FALSE(shown.display.inputMethodQuery(Qt::ImEnabled).toBool()) << "nothing is typed here";

    press(Qt::Key_Home, Qt::ControlModifier);
    press(Qt::Key_End);
    shown.events.clear();
    press(Qt::Key_Return);
    EXPECT_EQ(shown.events, "click 6+0;up;") << "behind a block it means its statement";
}

TEST(ProofDisplay, ScrollsNoFurtherThanNeededToWhatTheLogicShows) {
    std::string text;
    for (int line = 1; line <= 200; ++line) text += std::to_string(line) + "\tP\r\n";
    Displayed shown(text);
    QScrollBar* bar = shown.display.verticalScrollBar();
    const int place = At(text, "\n100\t") + 1;
    shown.ShowPlace(place);
    EXPECT_NEAR(shown.display.CaretRect(place).bottom(), shown.display.viewport()->height(), 2);
    // By way of the end, the line comes to stand at the top.
    shown.box.SelStart = shown.box.TextLength();
    shown.ShowPlace(place);
    EXPECT_LT(shown.display.CaretRect(place).top(), 10);
    const int scrolled = bar->value();
    shown.ShowPlace(At(text, "\n105\t") + 1);
    EXPECT_EQ(bar->value(), scrolled);
}

TEST(ProofDisplay, ScrollsSidewaysToASelectionAndBackToTheLineStarts) {
    const std::string text = std::string(500, 'P') + "\r\n1\tP & Q\r\n";
    Displayed shown(text);
    const QScrollBar* bar = shown.display.horizontalScrollBar();
    shown.ShowPlace(490);
    EXPECT_GT(bar->value(), 1000);
    shown.ShowPlace(300);
    EXPECT_NEAR(shown.display.CaretRect(300).left(), 6, 1) << "no further than needed";
    shown.ShowPlace(At(text, "Q"));
    EXPECT_EQ(bar->value(), 0);
    shown.ShowPlace(300, 20);
    EXPECT_LT(shown.display.CaretRect(320).right(), shown.display.viewport()->width());
    EXPECT_GT(shown.display.CaretRect(300).left(), 0);
}

TEST(ProofDisplay, HasTheScrollBarsItNeedsAndNoOthers) {
    Displayed shown(std::string(50, 'P') + "\n1\n2\n3\n4\n5\n6\n7\n8");
    ProofDisplay& display = shown.display;
    const QScrollBar* down = display.verticalScrollBar();
    const QScrollBar* across = display.horizontalScrollBar();
    const QRect end = display.CaretRect(shown.box.TextLength());
    const QSize content(display.CaretRect(50).right() + 1 + 6, end.bottom() + 1 + 6);
    const QSize frame = display.size() - display.maximumViewportSize();
    for (const int less : {0, 100, 10, 1, 0, 1, 0}) {  // too small for a while, then just enough
        display.resize(content + frame - QSize(0, less));
        QTest::qWait(10);
        EXPECT_EQ(down->isVisible(), less > 0) << less;
        EXPECT_EQ(across->isVisible(), less > 0) << less << ": the other took its room";
        const int hidden = content.height() - display.viewport()->height();
        EXPECT_EQ(down->maximum(), less > 0 ? hidden : 0) << less;
    }
}

struct ResizeCounter : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Resize ? 1 : 0;
        return false;
    }
    int count = 0;
};

// The index takes each character for one column; the painted line is what counts.
TEST(ProofDisplay, ScrollsToTheEndOfWideCharacters) {
    std::string wide;
    while (wide.size() < 3 * 50) wide += "\u8a3c";
    Displayed shown("1\r\n" + wide + "\r\n2");
    ResizeCounter resizes;
    shown.display.viewport()->installEventFilter(&resizes);
    QTest::qWait(50);
    const QScrollBar* bar = shown.display.horizontalScrollBar();
    const int reach = bar->maximum();
    const int end = 3 + 3 * 50;
    const int width = shown.display.CaretRect(end).right() + 1 + 6;
    EXPECT_EQ(reach, std::max(0, width - shown.display.viewport()->width()));
    EXPECT_LE(resizes.count, 1) << "the bar comes once, and stays";
    shown.ShowPlace(end);
    EXPECT_GE(bar->value(), reach - 10);

    const auto replace = [&](int start, int length, const std::string& text) {
        shown.box.SelStart = start;
        shown.box.SelLength = length;
        shown.box.SelText = text;
        shown.display.Sync();
        return bar->maximum();
    };
    EXPECT_EQ(replace(0, 0, "0\r\n"), reach) << "it has moved";
    EXPECT_EQ(replace(shown.box.TextLength(), 0, "3"), reach);
    EXPECT_EQ(replace(10, 60, "P"), 0) << "it has changed";
}

// A proof of the greatest length: only the lines in sight are laid out and formatted, at first and
// after a change, and a change far below lays out none.
TEST(ProofDisplay, CostsOnlyWhatIsInSight) {
    LongProof proof;
    Displayed shown("");
    proof.Show(shown.box);
    shown.display.Sync();
    shown.display.grab();
    EXPECT_LT(proof.formatted, 60);
    EXPECT_LT(shown.display.LinesLaidOut(), 60);

    QScrollBar* bar = shown.display.verticalScrollBar();
    for (int page = 0; page < 100; ++page) {
        bar->setValue(bar->maximum() / 100 * page);
        shown.display.grab();
    }
    EXPECT_LT(proof.formatted, 60 * 101);
    bar->setValue(0);
    shown.display.grab();
    const int laidOut = shown.display.LinesLaidOut();
    proof.Append("Q\r\n");
    proof.Show(shown.box);
    shown.display.Sync();
    EXPECT_EQ(shown.display.LinesLaidOut(), laidOut);
}
