#include "desktop/LineIndex.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

using tessaryn::LineIndex;

TEST(LineIndex, AfterAnyEditIsAsIfBuiltAnew) {
    std::mt19937 random(7);
    const auto below = [&](int limit) {
        return std::uniform_int_distribution(0, limit - 1)(random);
    };
    const std::string alphabet[] = {"a",        "\r\n", "\t", "long word",
                                    "\xC3\xA9", "\n",   "\r", "\xF0\x9D\x94\xB8"};
    std::string text = "1\tP & Q\r\n\r\n\xCE\xB5\xCE\xB5\r\nlast";
    LineIndex edited;
    edited.Rebuild(text);
    ASSERT_EQ(edited.Count(), 4);
    EXPECT_EQ(edited.End(text, 0), 7);
    EXPECT_EQ(edited.Start(1), 9);
    EXPECT_EQ(edited.End(text, 1), 9);
    EXPECT_EQ(edited.LineAt(8), 0);  // on the LF
    EXPECT_EQ(edited.WidestLine(), LineIndex::TabColumns + 5);
    EXPECT_EQ(edited.Units(text), 16);
    for (int step = 0; step < 2000; ++step) {
        const int start = below(static_cast<int>(text.size()) + 1);
        const int removed = below(std::min(12, static_cast<int>(text.size()) - start + 1));
        std::string inserted;
        for (int i = below(5); i > 0; --i) inserted += alphabet[below(8)];
        text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(removed), inserted);
        edited.Update(text, start, removed, static_cast<int>(inserted.size()));
        LineIndex fresh;
        fresh.Rebuild(text);
        ASSERT_EQ(edited.Count(), fresh.Count()) << "step " << step;
        for (int line = 0; line < fresh.Count(); ++line) {
            ASSERT_EQ(edited.Start(line), fresh.Start(line)) << "step " << step;
            ASSERT_EQ(edited.LineAt(fresh.Start(line)), line) << "step " << step;
            if (below(3) == 0) break;  // units are counted as far as someone asks
            const int units = edited.UnitAt(text, fresh.Start(line));
            ASSERT_EQ(units, fresh.UnitAt(text, fresh.Start(line))) << "step " << step;
            ASSERT_EQ(edited.ByteAt(text, units), fresh.Start(line)) << "step " << step;
        }
        ASSERT_EQ(edited.WidestLine(), fresh.WidestLine()) << "step " << step;
        if (step % 5 == 0) {
            ASSERT_EQ(edited.Units(text), fresh.Units(text)) << "step " << step;
        }
    }
}
