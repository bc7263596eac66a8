#include <gtest/gtest.h>

#include <ctime>
#include <initializer_list>
#include <string_view>

#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"

namespace tessaryn {

namespace {

std::string Repeated(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; i++) result += text;
    return result;
}

std::string Join(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts) text += part;
    return text;
}

std::string NestedQuantifiers(int depth) {
    std::string text;
    for (int i = 0; i < depth; i++) text.append("ALL(x").append(std::to_string(i)).append("):");
    return text + "P(x0)";
}

// Runs the work and expects it to take little processor time, with room for slow builds.
template <typename Work>
void ExpectQuick(const Work& work) {
    const std::clock_t start = std::clock();
    work();
    EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC);
}

}  // namespace

// A name makes three entries; with each "&" and its pair a further one is six more.
TEST(ParseLimits, SourceAndTable) {
    EXPECT_EQ(ParseExpression(Join({"P", std::string(MaxSourceLength - 1, ' ')})).error, "");
    EXPECT_EQ(ParseExpression(Join({"P", std::string(MaxSourceLength, ' ')})).error, UnableToParse);
    EXPECT_EQ(ParseExpression(Join({"#", std::string(MaxSourceLength, ' ')})).error, UnableToParse);
    const Expression largest = ParseExpression(Join({"P", Repeated("&P", 5460)}));
    EXPECT_EQ(largest.error, "");
    EXPECT_EQ(largest.tokens.size() - 1, 32763U);
    const Expression tooLarge = ParseExpression(Join({"P", Repeated("&P", 5461)}));
    EXPECT_EQ(tooLarge.error, UnableToParse);
    EXPECT_EQ(tooLarge.errorPos, 0);
    // a pass that fails ahead of the one in which the table would grow too large
    EXPECT_EQ(ParseExpression(Join({"x+", Repeated("&P", 5462)})).error,
              "30. Invalid expression on RHS of +");
}

TEST(ParseLimits, HostileTextsAreQuick) {
    const std::string hostile[] = {
        Repeated("(", 30000),
        Repeated("(", 15000) + "x" + Repeated(")", 15000),
        Repeated("([", 8000) + Repeated(")]", 8000),
        Repeated("ALL([", 4000) + Repeated("):]", 4000),
        Repeated("ALL(", 4000) + Repeated("[", 2000) + Repeated("):]", 2000) + Repeated(")", 2000),
        Repeated("ALL(x):", 3000) + "P",
        Repeated("~", 10000) + "P",
        Repeated("_", 10000) + "x",
        NestedQuantifiers(10000),
        Repeated("x ", 16000),
        Repeated("1234567890abcdef \xff(&", 250000),
        Repeated("P&", 2500000),
    };
    for (const std::string& text : hostile) {
        ExpectQuick([&] {
            const Expression parsed = ParseExpression(text);
            PrintExpression(parsed);
            SameExpressions(text, text);
        });
    }
}

TEST(ParseLimits, DeepTreesAreQuick) {
    const std::string deep[] = {
        NestedQuantifiers(2400),
        Join({"x", Repeated("+x", 5400), "=y"}),
        Repeated("x+(", 4000) + "x" + Repeated(")", 4000),
        Repeated("~", 10000) + "P",
        Repeated("f(", 4600) + "x" + Repeated(")", 4600),
    };
    for (const std::string& text : deep) {
        ExpectQuick([&] {
            const Expression parsed = ParseExpression(text);
            EXPECT_EQ(parsed.error, "") << text.substr(0, 20);
            const std::string printed = PrintExpression(parsed);
            EXPECT_EQ(ParseExpression(printed).nodes, parsed.nodes) << text.substr(0, 20);
            SameExpressions(text, text + " ");
        });
    }
}

}  // namespace tessaryn
