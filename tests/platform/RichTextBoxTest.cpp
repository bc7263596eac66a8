#include "platform/RichTextBox.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <tuple>

#include "platform/Form.h"

namespace tessaryn {
namespace {

// Font's first letter, size, colour as one hex digit and "b", then the text: "C12.0b[text]".
std::string Shown(RichTextBox& box) {
    std::string shown;
    for (const FormatRun& run : box.Runs()) {
        shown += run.format.Font.substr(0, 1) + std::to_string(run.format.Size) + "." +
                 std::to_string(run.format.Color) + (run.format.Bold ? "b" : "") + "[" +
                 box.GetText().substr(static_cast<std::size_t>(run.start),
                                      static_cast<std::size_t>(run.length)) +
                 "]";
    }
    return shown;
}

CharFormat Coloured(Colour colour) {
    return {"Courier New", 12, colour, false};
}

struct RichTextBoxTest : testing::Test {
    static std::size_t Size(int number) { return static_cast<std::size_t>(number); }
    // "ab" in colour 1, "cd" in colour 2, "ef" in colour 3.
    void Fill() {
        box.Text = "abcdef";
        for (int i = 0; i < 3; ++i) box.SetFormat(2 * i, 2, Coloured(static_cast<Colour>(i + 1)));
        box.TakeChange();
    }
    void Select(int start, int length) {
        box.SelStart = start;
        box.SelLength = length;
    }
    void ExpectChange(int start, int removed, int inserted) {
        const SurfaceChange change = box.TakeChange();
        EXPECT_TRUE(change.any);
        EXPECT_EQ(std::tie(change.start, change.removed, change.inserted),
                  std::tie(start, removed, inserted));
        EXPECT_FALSE(box.TakeChange().any);
    }

    Form form{"Proof"};
    RichTextBox box{form, "RTB"};
};

TEST_F(RichTextBoxTest, SelectionStaysInsideTheText) {
    box.Text = "aε\r\nb";  // 6 bytes
    const struct {
        int start, length, shownStart, shownLength;
    } rows[] = {
        {-5, 99, 0, 6}, {99, 1, 6, 0}, {2, 0, 1, 0},  {1, 1, 1, 2},       {0, 2, 0, 3},
        {4, 1, 4, 1},   {3, 1, 3, 1},  {3, -4, 3, 0}, {1, INT_MAX, 1, 5}, {INT_MIN, INT_MIN, 0, 0}};
    for (const auto& row : rows) {
        Select(row.start, row.length);
        EXPECT_EQ(box.SelStart, row.shownStart) << row.start;
        EXPECT_EQ(box.SelLength, row.shownLength) << row.start;
    }
}

TEST_F(RichTextBoxTest, AttributesOfTheSelection) {
    Fill();
    Select(1, 4);
    EXPECT_EQ(box.SelColor, 1u) << "the first character's";
    box.SelBold = true;
    EXPECT_EQ(Shown(box), "C12.1[a]C12.1b[b]C12.2b[cd]C12.3b[e]C12.3[f]");
    box.SelFontName = "Symbol";
    box.SelFontSize = 9;
    box.SelBold = false;
    EXPECT_EQ(Shown(box), "C12.1[a]S9.1[b]S9.2[cd]S9.3[e]C12.3[f]");
    Select(4, 1);
    EXPECT_EQ(std::string(box.SelFontName), "Symbol");
    box.SelFontSize = -4;
    EXPECT_EQ(box.SelFontSize, 1);
}

TEST_F(RichTextBoxTest, InsertionFormatLastsUntilTheCaretMoves) {
    Fill();
    Select(2, 0);
    box.SelColor = 7;
    box.SelBold = true;
    box.SelStart = 2;  // where it is: no move
    box.TypeText("x");
    box.TypeText("y");
    EXPECT_EQ(Shown(box), "C12.1[ab]C12.7b[xy]C12.2[cd]C12.3[ef]");
    box.SelStart = 0;
    EXPECT_EQ(box.SelColor, 1u);
    box.SelStart = 4;
    EXPECT_EQ(box.SelColor, 7u) << "the character ahead";
}

TEST_F(RichTextBoxTest, WholeText) {
    EXPECT_EQ(Shown(box), "");
    box.SelColor = 5;
    box.Text = "a\nb\rc\r\n";
    EXPECT_EQ(Shown(box), "C12.5[a\r\nb\r\nc\r\n]");
    box.SetFormat(0, 1, Coloured(6));
    box.Text = "";
    box.Text = "new";
    EXPECT_EQ(Shown(box), "C12.6[new]");
    box.TextRTF = "";
    box.Text = "new";
    EXPECT_EQ(Shown(box), "C12.0[new]");
}

TEST_F(RichTextBoxTest, UserEditing) {
    const struct {
        int start, length;
        const char* forward;
        const char* backward;
    } rows[] = {{0, 0, "ε\r\nb", "aε\r\nb"},
                {1, 0, "a\r\nb", "ε\r\nb"},
                {3, 0, "aεb", "a\r\nb"},
                {4, 0, "aεb", "aεb"},
                {5, 0, "aε\r\n", "aεb"},
                {6, 0, "aε\r\nb", "aε\r\n"},
                {1, 5, "a", "a"}};
    for (const auto& row : rows) {
        box.Text = "aε\r\nb";
        Select(row.start, row.length);
        box.DeleteForward();
        EXPECT_EQ(box.GetText(), row.forward) << row.start;
        box.Text = "aε\r\nb";
        Select(row.start, row.length);
        box.DeleteBackward();
        EXPECT_EQ(box.GetText(), row.backward) << row.start;
    }
    box.Text = "";
    box.DeleteBackward();
    box.DeleteForward();
    box.MultiLine = false;
    box.TypeText("a\r\nb");
    EXPECT_EQ(box.GetText(), "ab");
    box.ReadOnly = true;
    box.TypeText("c");
    box.DeleteBackward();
    EXPECT_EQ(box.GetText(), "ab");
}

TEST_F(RichTextBoxTest, ReportsTheRangeThatChanged) {
    box.Text = "ab";
    ExpectChange(0, 0, 2);
    box.Text = "ab";
    EXPECT_FALSE(box.TakeChange().any);
    Fill();
    box.SetFormat(0, 3, Coloured(1));  // "ab" has it
    ExpectChange(2, 1, 1);
}

// Blocks named by their text: colour by the key, formatted when asked.
struct BlocksTest : RichTextBoxTest {
    void Set(const std::vector<std::pair<std::string, unsigned>>& rows) {
        std::string text;
        std::vector<RichTextBox::Block> blocks;
        for (const auto& [part, key] : rows) {
            text += part;
            blocks.push_back({static_cast<int>(part.size()), key});
        }
        box.SetBlocks(text, blocks, [blocks](int index) {
            const auto& block = blocks[Size(index)];
            return std::vector<FormatRun>{
                {0, block.length, Coloured(static_cast<Colour>(block.key))}};
        });
    }
};

// Random edits beside a plain model: a format for each byte, and a front end's copy that is kept in
// step by the reported changes alone.
TEST_F(BlocksTest, RandomEditsAgreeWithASimpleModel) {
    std::mt19937 random(7);
    auto below = [&](int limit) {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    std::string text;
    std::string colours;
    std::string copy;
    for (int round = 0; round < 5000; ++round) {
        const int start = below(box.TextLength() + 1);
        const int length = below(box.TextLength() - start + 1);
        const auto at = Size(start);
        const auto count = Size(length);
        const int what = below(20);
        if (what == 0) {
            std::vector<std::pair<std::string, unsigned>> rows;
            text.clear();
            colours.clear();
            for (int i = below(9); i > 0; --i) {
                const auto key = static_cast<unsigned>(1 + below(2));
                rows.emplace_back(std::string(1 + key, static_cast<char>('a' + below(2))), key);
                text += rows.back().first;
                colours.append(rows.back().first.size(), static_cast<char>(key));
            }
            Set(rows);
        } else if (what < 8) {
            const auto colour = static_cast<Colour>(below(4));
            box.SetFormat(start, length, Coloured(colour));
            colours.replace(at, count, count, static_cast<char>(colour));
        } else {
            Select(start, length);
            const char behind = start > 0                ? colours[at - 1]
                                : count < colours.size() ? colours[count]
                                                         : static_cast<char>(box.SelColor());
            const std::string typed(Size(below(3)), 'x');
            box.SelText = typed;
            text.replace(at, count, typed);
            colours.replace(at, count, typed.size(), behind);
        }
        if (below(3) == 0) {
            const SurfaceChange change = box.TakeChange();
            copy.replace(Size(change.start), Size(change.removed),
                         box.GetText().substr(Size(change.start), Size(change.inserted)));
            ASSERT_EQ(copy, text) << round;
        }
        ASSERT_EQ(box.GetText(), text) << round;
        std::string found;
        for (const FormatRun& run : box.Runs()) {
            found.append(Size(run.length), static_cast<char>(run.format.Color));
            ASSERT_EQ(box.FormatAt(run.start + run.length - 1), run.format);
        }
        ASSERT_EQ(found, colours) << round;
    }
}

}  // namespace
}  // namespace tessaryn
