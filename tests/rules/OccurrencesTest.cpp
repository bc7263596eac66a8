// The fast search for occurrences against one that asks Same about each candidate, and the box in
// which occurrences are replaced.
#include "expr/Occurrences.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "cli/HeadlessPlatform.h"
#include "expr/Parse.h"
#include "expr/RandomText.h"
#include "expr/Same.h"
#include "rules/OccurrenceBox.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

// --- the search, step by step over the tokens

struct Candidate {
    Span span;
    int last;  // its last written token
    bool bracketed;
};

Candidate CandidateOf(const Expression& in, int open, int close) {
    while (TokenAt(in, open).Position == 0) ++open;
    while (TokenAt(in, close).Position == 0) --close;
    Span span = WrittenSpan(in, open, close);
    const std::string& first = TokenAt(in, open).Token;
    const bool bracketed = (first == "(" || first == "[") && TokenAt(in, open).TPtr == close;
    if (bracketed) span = {span.start + 1, span.end - 1};
    return {span, close, bracketed};
}

bool IsOccurrence(const Expression& term, const Expression& in, Span span) {
    return Same(Cut(in.text, span), term.text);
}

std::vector<Span> SlowAllOccurrences(const Expression& term, const Expression& in, Search search) {
    std::vector<Span> spans;
    int i = static_cast<int>(in.tokens.size()) - 1;
    while (i > 0) {
        const int open = TokenAt(in, i).TPtr;
        const int node = TokenAt(in, i).DPtr;
        if (open == 0 || open > i || NodeAt(in, node).Rule != Root(term).Rule) {
            --i;
            continue;
        }
        const Candidate candidate = CandidateOf(in, open, i);
        const bool found = IsOccurrence(term, in, candidate.span);
        const bool inside = !spans.empty() && candidate.span.end >= spans.back().start;
        if (found && !inside) spans.push_back(candidate.span);
        if (search == Search::AheadOfLastToken) {
            i = candidate.last - (candidate.bracketed ? 2 : 1);
        } else {
            i = found ? open - 1 : i - 1;
        }
    }
    std::reverse(spans.begin(), spans.end());
    return spans;
}

std::optional<Span> SlowOccurrenceAt(const Expression& term, const Expression& in, int place) {
    for (int i = 1; i < static_cast<int>(in.tokens.size()); ++i) {
        const int close = TokenAt(in, i).TPtr;
        if (close <= i) continue;
        const Span span = CandidateOf(in, i, close).span;
        if (place < span.start || place > span.end) continue;
        if (IsOccurrence(term, in, span)) return span;
    }
    return std::nullopt;
}

std::string Shown(const std::vector<Span>& spans) {
    std::string shown;
    for (const Span& span : spans) {
        shown += std::to_string(span.start) + "-" + std::to_string(span.end) + " ";
    }
    return shown;
}

std::string Shown(const std::optional<Span>& span) {
    return span ? Shown(std::vector<Span>{*span}) : "";
}

// A term of the formula, or one that differs from it by a sign.
Expression SomeTermOf(const Expression& formula, Random& random) {
    for (int attempt = 0; attempt < 20; ++attempt) {
        const int node = 1 + static_cast<int>(random() % (formula.nodes.size() - 1));
        if (!IsAlgebraic(NodeAt(formula, node).Rule)) continue;
        std::string text = TextOfNode(formula, node);
        if (random() % 4 == 0) std::replace(text.begin(), text.end(), '+', '*');
        Expression term = ParseExpression(text);
        if (term.error.empty()) return term;
    }
    return ParseExpression("x");
}

TEST(Occurrences, AreThoseThatSameFinds) {
    Random random(20261122);
    int found = 0;
    for (int round = 0; round < 1500; ++round) {
        const Expression formula = ParseExpression(RandomFormula(random, 5));
        if (!formula.error.empty()) continue;
        const Expression term = SomeTermOf(formula, random);
        const std::string context = term.text + " in " + formula.text;
        for (const Search search : {Search::OutermostOnly, Search::AheadOfLastToken}) {
            const auto spans = AllOccurrences(term.nodes, formula, search);
            found += static_cast<int>(spans.size());
            ASSERT_EQ(Shown(spans), Shown(SlowAllOccurrences(term, formula, search))) << context;
        }
        const int place = 1 + static_cast<int>(random() % formula.text.size());
        ASSERT_EQ(Shown(OccurrenceAt(term.nodes, formula, place)),
                  Shown(SlowOccurrenceAt(term, formula, place)))
            << context << " at " << place;
    }
    EXPECT_GT(found, 1000);
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
