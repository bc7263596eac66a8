// The laws of the parser, one of them that it follows its definition, over random texts.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "ParseLaws.h"
#include "RandomText.h"
#include "expr/Parse.h"

namespace tessaryn {

namespace {

int CountParsed(int texts, const std::function<std::string()>& next) {
    int parsed = 0;
    for (int i = 0; i < texts && !testing::Test::HasFailure(); i++) {
        const std::string text = next();
        EXPECT_EQ(BrokenLaw(text), "") << text;
        parsed += ParseExpression(text).error.empty() ? 1 : 0;
    }
    return parsed;
}

}  // namespace

TEST(ParseLaws, FormulasAndTheirMutations) {
    Random random(1);
    const auto next = [&] { return Mutated(random, RandomFormula(random, 5)); };
    EXPECT_GT(CountParsed(8000, next), 2000);
}

TEST(ParseLaws, ShortRowsOfTokens) {
    Random random(2);
    EXPECT_GT(CountParsed(20000, [&] { return RandomTokens(random, 9); }), 500);
}

TEST(ParseLaws, LongRowsOfTokens) {
    Random random(3);
    CountParsed(5000, [&] { return RandomTokens(random, 40); });
}

// Brackets that match by kind but cross, round every sign that makes a group.
TEST(ParseLaws, CrossingBrackets) {
    Random random(4);
    const std::array<const char*, 14> pieces{"(", "[", "(", "[", ")", "]",   ")",
                                             "]", "x", "P", ":", "~", "ALL", "(x):"};
    CountParsed(15000, [&] {
        std::string text = "[";
        for (size_t i = 4 + random() % 12; i > 0; i--) text += pieces[random() % pieces.size()];
        return text + "]";
    });
}

// The seeds of the fuzz target and what mutation makes of them.
TEST(ParseLaws, FuzzCorpus) {
    Random random(5);
    const std::filesystem::path corpus(TESSARYN_SOURCE_DIR "/fuzz/corpus/parse");
    int seeds = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string seed{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(BrokenLaw(seed), "") << seed;
        for (int i = 0; i < 300; i++) {
            const std::string text = Mutated(random, seed);
            EXPECT_EQ(BrokenLaw(text), "") << text;
        }
        seeds++;
    }
    EXPECT_GE(seeds, 10);
}

}  // namespace tessaryn
