// Comments that are long or hold what the program itself writes into its text.
#include <gtest/gtest.h>

#include "Steps.h"
#include "document/Document.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "editing/Comment.h"
#include "editing/CommentText.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

std::string Long() {
    std::string text;
    while (text.size() < 100000) text += "Line " + std::to_string(text.size()) + " @ \xC3\xB1\r\n";
    return text + "end";
}

TEST(Comments, SurviveEditingSavingReopeningAndUndo) {
    const std::string texts[] = {
        "\r\n\r\nbehind line ends",
        "{\\rtf1\\b bold}\\par <b>&amp;</b> \"1 P\"\r\n Premise\r\n\r\n2",
        "\xE2\x88\x80x \xCE\xB5 \xF0\x9F\x98\x80 @ e",
        "lone CR LF at the ends of words \r\n \r\n x",
        Long(),
    };
    for (const std::string& text : texts) {
        ASSERT_EQ(Do("+ P & Q ; Split 1 ; Conclusion ; Intro ; choose cmdClear ; choose Continue"),
                  "");
        for (int line = 0; line <= StmtCount; ++line) {
            line == 0 ? SetIntroduction(text) : SetComment(line, text);
            ASSERT_EQ(CheckDocument(), "");
        }
        const auto expectAll = [&](const char* when) {
            ASSERT_EQ(CheckDocument(), "") << when;
            EXPECT_TRUE(Introduction() == text) << when;
            for (int line = 1; line <= StmtCount; ++line) {
                EXPECT_TRUE(CommentOf(line) == text) << when << ", line " << line;
            }
        };
        expectAll("after editing");
        const auto stored = ReadProof(WriteProof());
        ASSERT_TRUE(stored);
        EXPECT_TRUE(stored->ProofText == ProofText);
        SetComment(3, "");
        Undo();
        expectAll("after undo");
    }
}

// The editing box hands on what it was given, whatever is in it. TABs pass for indentation.
TEST(Comments, PassTheBoxUnchanged) {
    const std::pair<std::string, std::string> rows[] = {
        {Long(), Long()},
        {"a\tb \\'e4 {x}\r\n\r\n\tc @ d", "ab \\'e4 {x}\r\n\r\nc @ d"},
    };
    for (const auto& [given, back] : rows) {
        ASSERT_EQ(Do("+ P"), "");
        SetComment(1, given);
        Comment.Visible = true;
        EditingIntro = false;
        CommentLine = 1;
        Comment.Activated();
        Comment.Continue.Click();
        EXPECT_TRUE(ProofSlice(1, StmtTable[1].EndUserComment) == back);
        EXPECT_FALSE(Comment.Visible);
    }
}

TEST(Comments, AnEmptyIntroductionLeavesItsLineEnds) {
    ASSERT_EQ(Do("Intro ; choose Continue ; + P"), "");
    EXPECT_EQ(IntroEnd, 0);
    EXPECT_EQ(StmtTable[1].StartLine, 5);
    ASSERT_EQ(Do("Intro ; choose Continue ; + P ; click at 0 ; click 1 ; form Comment"
                 " ; choose Cancel ; Intro ; set CommentBox \"I\" ; choose Continue"
                 " ; Intro ; choose cmdClear ; choose Continue"),
              "");
    EXPECT_EQ(StmtTable[1].StartLine, 1);
}

}  // namespace
}  // namespace tessaryn
