#include <gtest/gtest.h>

#include <ctime>
#include <initializer_list>

#include "Repeated.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"

namespace tessaryn {

namespace {

std::string NestedQuantifiers(int depth) {
    std::string text;
    for (int i = 0; i < depth; i++) text.append("ALL(x").append(std::to_string(i)).append("):");
    return text + "P(x0)";
}

}  // namespace

// A name makes three entries; with each "&" and its pair a further one is six more.
TEST(ParseLimits, SourceAndTable) {
    EXPECT_EQ(ParseExpression("P" + std::string(MaxSourceLength - 1, ' ')).error, "");
    EXPECT_EQ(ParseExpression("P" + std::string(MaxSourceLength, ' ')).error, UnableToParse);
    EXPECT_EQ(ParseExpression("#" + std::string(MaxSourceLength, ' ')).error, UnableToParse);
    const Expression largest = ParseExpression("P" + Repeated("&P", 5460));
    EXPECT_EQ(largest.error, "");
    EXPECT_EQ(largest.tokens.size() - 1, 32763U);
    const Expression tooLarge = ParseExpression("P" + Repeated("&P", 5461));
    EXPECT_EQ(tooLarge.error, UnableToParse);
    EXPECT_EQ(tooLarge.errorPos, 0);
    // a pass that fails ahead of the one in which the table would grow too large
    EXPECT_EQ(ParseExpression("x+" + Repeated("&P", 5462)).error,
              "30. Invalid expression on RHS of +");
}

TEST(ParseLimits, HostileTextsAndDeepTreesAreQuick) {
    const struct {
        std::string text;
        bool parses;
    } rows[] = {
        {Repeated("(", 30000), false},
        {Repeated("(", 15000) + "x" + Repeated(")", 15000), true},
        {Repeated("([", 8000) + Repeated(")]", 8000), false},
        {Repeated("ALL([", 4000) + Repeated("):]", 4000), false},
        {Repeated("ALL(x):", 3000) + "P", false},
        {Repeated("_", 4000) + "x", true},
        {NestedQuantifiers(10000), false},
        {Repeated("x ", 16000), false},
        {Repeated("1234567890abcdef \xff(&", 250000), false},
        {Repeated("P&", 2500000), false},
        {NestedQuantifiers(2400), true},
        {"x" + Repeated("+x", 5400) + "=y", true},
        {Repeated("x+(", 4000) + "x" + Repeated(")", 4000), true},
        {Repeated("~", 10000) + "P", true},
        {Repeated("f(", 4600) + "x" + Repeated(")", 4600), true},
    };
    for (const auto& [text, parses] : rows) {
        // Processor time, with room for slow builds.
        const std::clock_t start = std::clock();
        const Expression parsed = ParseExpression(text);
        const std::string printed = PrintExpression(parsed);
        Same(text, text + " ");
        if (parses) {
            EXPECT_EQ(ParseExpression(printed).nodes, parsed.nodes) << text.substr(0, 20);
        }
        EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC) << text.substr(0, 20);
        EXPECT_EQ(parsed.error.empty(), parses) << text.substr(0, 20);
    }
}

}  // namespace tessaryn
