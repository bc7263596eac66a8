// Which lines the View commands, clicks and double clicks leave in sight, and where the caret goes.
#include <gtest/gtest.h>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

// Highlights: 1 to 3, 5, 7, 12. Line 5 is closed by 10, in it 7 by 9.
const std::string Nested =
    "+ A & B ; Split 1 ; Join 3 2 ; + C ; CopyStatement 5 ; + D ; Join 5 7 ; Conclusion"
    " ; Conclusion ; CopyStatement 4 ; + E ; Join 12 2 ; ";

std::string ShownLines() {
    std::string lines;
    for (int line = 1; line <= StmtCount; ++line) {
        if (At(line).Visible) lines += (lines.empty() ? "" : " ") + std::to_string(line);
    }
    return lines;
}

// The line whose block begins at the caret, with 100 the line whose annotation ends there. -1 at
// the end of the display.
int LineAtCaret() {
    if (Proof.RTB.SelStart == Proof.RTB.TextLength()) return -1;
    const int ended = ShownStmtAt(Proof.RTB.SelStart);
    if (ended > 0 && ViewerEndRule(At(ended)) == Proof.RTB.SelStart) return 100 + ended;
    const int line = ShownStmtAt(Proof.RTB.SelStart + 1);
    return line > 0 && At(line).ViewerStartLine == Proof.RTB.SelStart + 1 ? line : 0;
}

TEST(ShowHide, LinesInSight) {
    const std::string all = "1 2 3 4 5 6 7 8 9 10 11 12 13";
    const std::string active = "1 2 3 4 10 11 12 13";
    const std::string showAll = "ShowAllStmts ; ";
    struct {
        std::string steps;
        std::string shown;
        int caret;
    } const rows[] = {
        {showAll, all, -1},
        {"HideDetails", "1 2 3 12 13", -1},
        {"HideDetails ; ShowDetails", active, -1},
        {"ShowHighlights", "1 2 3 5 7 9 10 12", -1},
        {"HideDetails ; ShowLastDetails", active, 3},
        // A highlight that shows within a closed block ends the stretch; the block stays as it is.
        {"ShowHighlights ; ShowLastDetails ; ShowLastDetails", "1 2 3 5 7 9 10 11 12 13", 5},
        // Blocks: an outer one unfolds with its inner ones folded.
        {showAll + "click 9 rule", "1 2 3 4 5 6 9 10 11 12 13", 109},
        {showAll + "click 10 rule", active, 110},
        {showAll + "click 10 rule ; click 10 rule", "1 2 3 4 5 6 9 10 11 12 13", 5},
        {showAll + "click 10 rule ; click 10 rule ; click 9 rule", all, 7},
        // The second half of a double click does not fold what the first has brought to the caret.
        {showAll + "click 10 rule ; doubleclick 10 rule", "1 2 3 4 5 6 9 10 11 12 13", 5},
        // Details, up to the highlight ahead.
        {showAll + "doubleclick 12 number", "1 2 3 12 13", 3},
        {showAll + "doubleclick 12 number ; doubleclick 12 number", active, 3},
        {showAll + "doubleclick 7 number", "1 2 3 4 5 7 8 9 10 11 12 13", 5},
        {showAll + "click 13 number ; doubleclick 13 number ; beep", all, 13},
        {showAll + "click 10 rule ; click 10 number ; doubleclick 10 number"
                   " ; doubleclick 10 number",
         active, 3},
        // Line 11 stays in sight ahead of the insert mark, and the caret stands behind it.
        {"Insert 12 ; HideDetails", "1 2 3 11 12 13", 111},
        {"Insert 1 ; HideDetails", "1 2 3 12 13", 1},
        {"Insert 1 ; ShowDetails", active, -1},
        {"Insert 12 ; ShowDetails", active, 111},
    };
    for (const auto& row : rows) {
        ASSERT_EQ(Do(Nested + row.steps), "");
        EXPECT_EQ(ShownLines(), row.shown) << row.steps;
        EXPECT_EQ(LineAtCaret(), row.caret) << row.steps;
    }
}

TEST(ShowHide, NewLinesOfSomeRulesAreHighlights) {
    ASSERT_EQ(Do("! ALL(a):P(a) & EXIST(b):Q(b) ; Split 1 ; Spec 3 ; < u ; Spec 2 ; : u"
                 " ; CopyStatement 1 ; Split 6 ; + P & Q ; Split 9 ; ShowHighlights"),
              "");
    EXPECT_EQ(ShownLines(), "1 2 3 4 9 10 11") << "not U Spec, nor Split of a copy";
}

TEST(ShowHide, AClickOnANumberMakesItBold) {
    ASSERT_EQ(Do(Nested + "click 6 number"), "");
    const int number = NumberStart(At(6)) - ViewOffset(At(6)) - 1;
    EXPECT_TRUE(At(6).Highlight);
    EXPECT_EQ(Proof.RTB.RunsIn(number, number + 1)[0].format,
              (CharFormat{"Courier New", 12, Rgb(128, 128, 128), true}));
    EXPECT_EQ(LineAtCaret(), 6);
    EXPECT_EQ(Proof.RTB.SelLength, 0);
    ASSERT_EQ(Do(Nested + "click 6 number ; click 6 number ; doubleclick 6 number"), "");
    EXPECT_FALSE(At(6).Highlight) << "a double click leaves it as it was";
    ASSERT_EQ(Do(Nested + "CopyStatement ; doubleclick 11 number"), "");
    EXPECT_FALSE(At(11).Highlight) << "the rule took the click";
    ASSERT_EQ(Do(Nested + "click 5 number ; click 2 number"), "");
    EXPECT_TRUE(At(5).Highlight) << "a Premise stays highlighted";
    EXPECT_FALSE(At(2).Highlight);
}

}  // namespace
}  // namespace tessaryn
