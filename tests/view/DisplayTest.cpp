// What the display shows: places, fonts and colours of a block's fields.
#include "document/Document.h"
#include "view/Display.h"

#include <gtest/gtest.h>

#include "Steps.h"
#include "mainwindow/Proof.h"
#include "output/WrittenProof.h"

namespace tessaryn {
namespace {

// Runs of the display as one line each: text, font (C, S, W), size, colour, b if bold.
std::string Look() {
    std::string look;
    for (const FormatRun& run : Proof.RTB.Runs()) {
        std::string text = Proof.RTB.GetText().substr(static_cast<std::size_t>(run.start),
                                                      static_cast<std::size_t>(run.length));
        for (char& c : text) {
            if (c == '\r' || c == '\n' || c == '\t') c = '.';
        }
        char format[32];
        std::snprintf(format, sizeof format, "|%c%d %06X%s\n", run.format.Font[0], run.format.Size,
                      run.format.Color, run.format.Bold ? " b" : "");
        look += text + format;
    }
    return look;
}

TEST(Display, StatementFields) {
    ASSERT_EQ(Do("! x @ s & ALL(a):P(a) ; + y=x"), "");
    EXPECT_EQ(Look(),
              "1|C12 000000 b\n"
              ".|C12 000000\n"
              "x|C12 C80000\n"
              " e |S12 000000\n"
              "s|C12 C80000\n"
              " & ALL(a):P(a)...|C12 000000\n"
              "Axiom|C10 808080\n"
              "....|C12 000000\n"
              "2|C12 000000 b\n"
              ".|C12 000000\n"
              "y|C12 00AF00\n"
              "=|C12 000000\n"
              "x|C12 C80000\n"
              "...|C12 000000\n"
              "Premise|C10 808080\n"
              "....|C12 000000\n");
}

TEST(Display, ClosedBlockAndTriangle) {
    const std::string block = "+ P & Q ; Split 1 ; Conclusion";
    ASSERT_EQ(Do(block), "");
    const std::string open = Look();
    EXPECT_NE(open.find("1|C12 808080 b\n"), std::string::npos) << "grey inside the block";
    EXPECT_NE(open.find("\n4|W10 000000\n |C12 000000\nConclusion, 1|C10 808080\n"),
              std::string::npos)
        << open;
    ASSERT_EQ(Do(block + " ; click 4 rule"), "");
    EXPECT_NE(Look().find("\n5|W10 000000\n |C12 000000\nConclusion, 1|C10 808080\n"),
              std::string::npos);
    EXPECT_NE(ProofText.find("\t4 Conclusion, 1"), std::string::npos) << "the text keeps its 4";
}

TEST(Display, CommentsAndIntroductionAreBlueWithElementSigns) {
    StartProof("", "In @ s");
    AddLine("P", Rule::Premise, "@@ é");
    RelayoutViewer();
    ResetFonts();
    EXPECT_EQ(Look().substr(0, 87),
              "In |C12 000096\n"
              "e|S12 000096\n"
              " s|C12 000096\n"
              "....|C12 000000\n"
              "ee|S12 000096\n"
              " é|C12 000096\n");
}

// Only what changed is handed on: all else keeps its formats and its place.
TEST(Display, HandsOnTheChangedRange) {
    ASSERT_EQ(Do("+ P & Q ; + R ; + S"), "");
    Proof.RTB.TakeChange();
    EditAt(2).Highlight = false;
    ResetFonts();
    const SurfaceChange change = Proof.RTB.TakeChange();
    EXPECT_TRUE(change.any);
    EXPECT_GE(change.start, StmtTable[2].ViewerStartLine - 1);
    EXPECT_LE(change.start + change.inserted, StmtTable[3].ViewerStartLine - 1);
    ResetFonts();
    EXPECT_FALSE(Proof.RTB.TakeChange().any);
}

}  // namespace
}  // namespace tessaryn
