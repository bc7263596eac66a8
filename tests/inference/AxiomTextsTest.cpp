// The numbers that the user enters, the texts of the schemes, and that the program accepts every
// text it writes by itself.
#include "inference/AxiomTexts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Steps.h"
#include "cli/Script.h"
#include "entry/EnteredNumber.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "inference/SchemeText.h"

namespace tessaryn {
namespace {

TEST(EnteredNumber, TakesTheLongestNumberAtTheHead) {
    const std::vector<std::pair<const char*, int>> rows = {
        {"", 0},          {"two", 0},         {"inf", 0},         {"-", 0},
        {".", 0},         {"3", 3},           {"  3x", 3},        {"3 4", 3},
        {"007", 7},       {"+4", 4},          {"-5", -5},         {"- 5", 0},
        {"1e1", 10},      {"1e", 1},          {"0x10", 0},        {"2.4", 2},
        {"2.5", 2},       {"2.6", 3},         {"3.5", 4},         {".5", 0},
        {"0.51", 1},      {"1.5", 2},         {"-2.5", -2},       {"5.", 5},
        {"32767", 32767}, {"32767.4", 32767}, {"-32768", -32768},
    };
    for (const auto& [text, number] : rows) EXPECT_EQ(EnteredNumber(text), number) << text;
    for (const char* text : {"32768", "32767.5", "-32769", "99999999999999999999", "1e999"}) {
        EXPECT_EQ(EnteredNumber(text), std::nullopt) << text;
    }
}

// The one scheme that no proof shows: the language has no equation between n-tuples.
TEST(SchemeText, OfNtupleEqualityComparesPlaceByPlace) {
    EXPECT_EQ(SchemeText(NtupleEqualityScheme, 3),
              "ALL(a1):ALL(a2):ALL(a3):ALL(b1):ALL(b2):ALL(b3):[(a1,a2,a3)=(b1,b2,b3)\r\n"
              "<=>a1=b1&a2=b2&a3=b3]");
    EXPECT_EQ(ParseExpression(SchemeText(NtupleEqualityScheme, 3)).error,
              "11. Expecting algebraic expression before = ");
}

// A text that does not parse, or with a name left free, would be no axiom of its kind.
void ExpectAxiom(const std::string& text) {
    const Expression parsed = ParseExpression(text);
    ASSERT_EQ(parsed.error, "") << text;
    EXPECT_EQ(FreeVarsOf(parsed), "") << text;
    EXPECT_EQ(ParseExpression(PrintExpression(parsed)).error, "") << text;
}

TEST(AxiomTexts, OfSetTheoryAreClosedFormulasUpToTheLargestNumber) {
    for (const AxiomScheme& scheme :
         {CartesianProductScheme, PowerSetScheme, SetEqualityScheme, FunctionExistenceScheme,
          FunctionSpaceScheme, FunctionEqualityScheme}) {
        for (const int n : {scheme.least, 2, 3, 10, MaxAxiomOrder}) {
            ExpectAxiom(SchemeText(scheme, n));
        }
    }
    for (const char* axiom : {PairwiseUnion, ArbitraryUnion, AxiomOfChoice}) ExpectAxiom(axiom);
}

// The statement holds the property five times, the criterion once.
TEST(AxiomDialogues, RefuseWhatGetsTooLong) {
    std::string property = "k=k";
    while (property.size() < 10000) property += "&k=k";
    const std::string refused =
        " ; choose cmdContinue ; count 7 ; control StatusLine \"Unable to parse expression\" ; "
        "form ";
    EXPECT_EQ(Do("NumberAxioms ; Add ; set BoundVarTextBox \"k\" ; set RTB " + Quoted(property) +
                 refused + "InductionForm"),
              "");
    while (property.size() < 32766) property += " ";
    EXPECT_EQ(Do("NumberAxioms ; Subset 1 ; set SubsetName \"y\" ; set BoundVars \"k\""
                 " ; set SelectExpression " +
                 Quoted(property) + refused + "SubsetFrm"),
              "");
}

}  // namespace
}  // namespace tessaryn
