// The search for occurrences of a term, and the box in which they are replaced.
#include "expr/Occurrences.h"

#include <gtest/gtest.h>

#include "cli/HeadlessPlatform.h"
#include "expr/Parse.h"
#include "rules/OccurrenceBox.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

std::string Shown(const std::vector<Span>& spans) {
    std::string shown;
    for (const Span& span : spans) {
        shown += std::to_string(span.start) + "-" + std::to_string(span.end) + " ";
    }
    return shown;
}

TEST(Occurrences, OfOneKindOfNodeDifferByHowTheSearchGoesOn) {
    const Expression negative = ParseExpression("_a");
    const Expression nested = ParseExpression("__a=_a");
    EXPECT_EQ(Shown(AllOccurrences(negative.nodes, nested, Search::OutermostOnly)), "2-3 5-6 ");
    EXPECT_EQ(Shown(AllOccurrences(negative.nodes, nested, Search::AheadOfLastToken)), "5-6 ");
}

// Of doubly written brackets, which only a file from elsewhere can hold, the occurrence inside is
// found once.
TEST(Occurrences, InDoubledBracketsAreFoundOnce) {
    const Expression statement = ParseExpression("f((a+b))=0 & g((x))=((x)) & P([x])");
    const auto found = [&](const char* term) {
        return Shown(
            AllOccurrences(ParseExpression(term).nodes, statement, Search::AheadOfLastToken));
    };
    EXPECT_EQ(found("a+b"), "3-7 ");
    EXPECT_EQ(found("x"), "16-18 22-24 31-33 ");
}

// --- the box

struct Boxes : Form {
    Boxes() : Form("Boxes") {}
    RichTextBox RTB{*this, "RTB"};
    RichTextBox SaveRTB{*this, "SaveRTB"};
};

class OccurrenceBox : public testing::Test {
  protected:
    void SetUp() override {
        StartHeadless();
        StmtFontSize = 14;
    }
    Boxes boxes;
};

TEST_F(OccurrenceBox, MarksOccurrencesAndColoursWhatReplacesThem) {
    const Expression term = ParseExpression("e");
    ShowOccurrences("e=f(e) & e @ s", term.nodes, boxes.RTB, boxes.SaveRTB);
    const CharFormat plain{StatementFont, 14, Black, false};
    const CharFormat blue{StatementFont, 14, CandidateBlue, true};
    const CharFormat sign{SymbolFont, 14, Black, false};
    const std::vector<FormatRun> marked = {{0, 1, blue},  {1, 3, plain}, {4, 1, blue},
                                           {5, 4, plain}, {9, 1, blue},  {10, 1, plain},
                                           {11, 1, sign}, {12, 2, plain}};
    EXPECT_EQ(boxes.RTB.Runs(), marked);
    EXPECT_EQ(boxes.SaveRTB.Runs(), marked);
    EXPECT_EQ(boxes.RTB.GetText(), "e=f(e) & e e s");

    ReplaceSpans(boxes.RTB, {{5, 5}, {10, 10}}, "long", ReplacedByAll);
    const CharFormat violet{StatementFont, 14, ReplacedByAll, false};
    EXPECT_EQ(boxes.RTB.Runs(), (std::vector<FormatRun>{{0, 1, blue},
                                                        {1, 3, plain},
                                                        {4, 4, violet},
                                                        {8, 4, plain},
                                                        {12, 4, violet},
                                                        {16, 1, plain},
                                                        {17, 1, sign},
                                                        {18, 2, plain}}));
    EXPECT_EQ(ExpressionIn(boxes.RTB).text, "e=f(long) & long @ s");
}

// What is put in beside an element sign must not take its font, or a name e is read as the sign.
TEST_F(OccurrenceBox, KeepsANameBesideAnElementSignAName) {
    ShowOccurrences("x@y", ParseExpression("y").nodes, boxes.RTB, boxes.SaveRTB);
    ReplaceSpans(boxes.RTB, {{3, 3}}, "e", ReplacedByClick);
    EXPECT_EQ(ExpressionIn(boxes.RTB).text, "x@e");
    // Nor must a statement that begins with a name take the font of what stood there before.
    ShowOccurrences("e=y", ParseExpression("y").nodes, boxes.RTB, boxes.SaveRTB);
    EXPECT_EQ(ExpressionIn(boxes.RTB).text, "e=y");
}

}  // namespace
}  // namespace tessaryn
