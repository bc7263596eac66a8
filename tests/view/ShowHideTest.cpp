// Which lines the View commands, clicks and double clicks leave in sight, and where the caret goes.
#include <gtest/gtest.h>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

std::string Copy(int line) {
    return "choose optCopyStatement\nclick " + std::to_string(line) + "\n";
}

std::string Join(int first, int second) {
    return "choose optJoin\nclick " + std::to_string(first) + "\nclick " + std::to_string(second) +
           "\n";
}

// Highlights: 1 to 3, 5, 7, 12. Line 5 is closed by 10, in it 7 by 9.
std::string NestedBlocks() {
    return EnterPremise("A & B") + "choose optSplit\nclick 1\n" + Join(3, 2) + EnterPremise("C") +
           Copy(5) + EnterPremise("D") + Join(5, 7) + "choose optConclusion\n" +
           "choose optConclusion\n" + Copy(4) + EnterPremise("E") + Join(12, 2);
}

std::string ShownLines() {
    std::string lines;
    for (int line = 1; line <= StmtCount; ++line) {
        if (At(line).Visible) lines += (lines.empty() ? "" : " ") + std::to_string(line);
    }
    return lines;
}

// The line whose block begins at the caret; 0 if none does. -1 at the end of the display.
int LineAtCaret() {
    if (Proof.RTB.SelStart == Proof.RTB.TextLength()) return -1;
    const int line = ShownStmtAt(Proof.RTB.SelStart + 1);
    return line > 0 && At(line).ViewerStartLine == Proof.RTB.SelStart + 1 ? line : 0;
}

TEST(ShowHide, LinesInSight) {
    const std::string all = "1 2 3 4 5 6 7 8 9 10 11 12 13";
    const std::string active = "1 2 3 4 10 11 12 13";
    const std::string showAll = "choose optShowAllStmts\n";
    const std::string hide = "choose optHideDetails\n";
    struct {
        std::string actions;
        std::string shown;
        int caret;
    } const rows[] = {
        {showAll, all, -1},
        {hide, "1 2 3 12 13", -1},
        {hide + "choose optShowDetails\n", active, -1},
        {"choose optShowHighlights\n", "1 2 3 5 7 9 10 12", -1},
        {hide + "choose optShowLastDetails\n", active, 3},
        // A highlight that shows within a closed block ends the stretch; the block stays as it is.
        {"choose optShowHighlights\nchoose optShowLastDetails\nchoose optShowLastDetails\n",
         "1 2 3 5 7 9 10 11 12 13", 5},
        // Blocks: an outer one unfolds with its inner ones folded.
        {showAll + "click 9 rule\n", "1 2 3 4 5 6 9 10 11 12 13", 0},
        {showAll + "click 10 rule\n", active, 0},
        {showAll + "click 10 rule\nclick 10 rule\n", "1 2 3 4 5 6 9 10 11 12 13", 5},
        {showAll + "click 10 rule\nclick 10 rule\nclick 9 rule\n", all, 7},
        // The second half of a double click does not fold what the first has brought to the caret.
        {showAll + "click 10 rule\ndoubleclick 10 rule\n", "1 2 3 4 5 6 9 10 11 12 13", 5},
        // Details, up to the highlight ahead.
        {showAll + "doubleclick 12 number\n", "1 2 3 12 13", 3},
        {showAll + "doubleclick 12 number\ndoubleclick 12 number\n", active, 3},
        {showAll + "doubleclick 7 number\n", "1 2 3 4 5 7 8 9 10 11 12 13", 5},
        {showAll + "click 13 number\ndoubleclick 13 number\nexpect beep\n", all, 13},
        {showAll + "click 10 rule\nclick 10 number\ndoubleclick 10 number\n"
                   "doubleclick 10 number\n",
         active, 3},
        // Line 11 stays in sight ahead of the insert mark, and the caret stands behind it.
        {"choose optInsert\nclick 12\n" + hide, "1 2 3 11 12 13", 0},
        {"choose optInsert\nclick 1\n" + hide, "1 2 3 12 13", 1},
        {"choose optInsert\nclick 1\nchoose optShowDetails\n", active, -1},
    };
    for (const auto& row : rows) {
        ASSERT_EQ(Build(NestedBlocks() + row.actions), "") << row.actions;
        EXPECT_EQ(ShownLines(), row.shown) << row.actions;
        EXPECT_EQ(LineAtCaret(), row.caret) << row.actions;
    }
}

TEST(ShowHide, NewLinesOfSomeRulesAreHighlights) {
    ASSERT_EQ(Build(EnterAxiom("ALL(a):P(a) & EXIST(b):Q(b)") + "choose optSplit\nclick 1\n" +
                    "choose optSpec\nclick 3\ntype \"u\\n\"\n" +
                    "choose optSpec\nclick 2\nset RTB \"u\"\nchoose cmdContinue\n" + Copy(1) +
                    "choose optSplit\nclick 6\n" + EnterPremise("P & Q") +
                    "choose optSplit\nclick 9\nchoose optShowHighlights\n"),
              "");
    EXPECT_EQ(ShownLines(), "1 2 3 4 9 10 11") << "not U Spec, nor Split of a copy";
}

TEST(ShowHide, CaretsBehindAnnotations) {
    ASSERT_EQ(Build(NestedBlocks() + "click 10 rule\n"), "");
    EXPECT_EQ(Proof.RTB.SelStart, ViewerEndRule(At(10)));
    EXPECT_EQ(
        Proof.RTB.GetText()[static_cast<std::size_t>(At(10).StartRule - ViewOffset(At(10)) - 1)],
        '5');
    ASSERT_EQ(Build(NestedBlocks() + "choose optInsert\nclick 12\nchoose optHideDetails\n"), "");
    EXPECT_EQ(Proof.RTB.SelStart, ViewerEndRule(At(11)));
}

TEST(ShowHide, AClickOnANumberMakesItBold) {
    ASSERT_EQ(Build(NestedBlocks() + "click 6 number\n"), "");
    const int number = NumberStart(At(6)) - ViewOffset(At(6)) - 1;
    EXPECT_TRUE(At(6).Highlight);
    EXPECT_EQ(Proof.RTB.RunsIn(number, number + 1)[0].format,
              (CharFormat{"Courier New", 12, Rgb(128, 128, 128), true}));
    EXPECT_EQ(LineAtCaret(), 6);
    EXPECT_EQ(Proof.RTB.SelLength, 0);
    ASSERT_EQ(Build(NestedBlocks() + "click 6 number\nclick 6 number\ndoubleclick 6 number\n"), "");
    EXPECT_FALSE(At(6).Highlight) << "a double click leaves it as it was";
    ASSERT_EQ(Build(NestedBlocks() + "choose optCopyStatement\ndoubleclick 11 number\n"), "");
    EXPECT_FALSE(At(11).Highlight) << "the rule took the click";
    ASSERT_EQ(Build(NestedBlocks() + "click 5 number\nclick 2 number\n"), "");
    EXPECT_TRUE(At(5).Highlight) << "a Premise stays highlighted";
    EXPECT_FALSE(At(2).Highlight);
}

}  // namespace
}  // namespace tessaryn
