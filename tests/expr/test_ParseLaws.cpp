// The laws of the parser, one of them that it follows its definition, over random texts.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
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

TEST(ParseLaws, HoldForRandomTexts) {
    Random random(1);
    EXPECT_GT(CountParsed(8000, [&] { return Mutated(random, RandomFormula(random, 5)); }), 2000);
    EXPECT_GT(CountParsed(20000, [&] { return RandomTokens(random, 9); }), 500);
    CountParsed(5000, [&] { return RandomTokens(random, 40); });
    // Brackets that match by kind but cross, round every sign that makes a group.
    constexpr std::array<const char*, 14> pieces{"(", "[", "(", "[", ")", "]",   ")",
                                                 "]", "x", "P", ":", "~", "ALL", "(x):"};
    CountParsed(15000, [&] {
        std::string text = "[";
        for (size_t i = 4 + random() % 12; i > 0; i--) text += pieces[random() % pieces.size()];
        return text + "]";
    });
}

// The seeds of the fuzz target, their single lines, and what mutation makes of them.
TEST(ParseLaws, FuzzCorpus) {
    Random random(5);
    const std::filesystem::path corpus(TESSARYN_SOURCE_DIR "/fuzz/corpus/parse");
    int seeds = 0;
    for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string seed{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(BrokenLaw(seed), "") << seed;
        std::istringstream lines(seed);
        for (std::string line; std::getline(lines, line);) EXPECT_EQ(BrokenLaw(line), "") << line;
        CountParsed(300, [&] { return Mutated(random, seed); });
        seeds++;
    }
    EXPECT_GE(seeds, 10);
}

}  // namespace tessaryn
