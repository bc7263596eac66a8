// The platform without a display on forms of its own.
#include "cli/HeadlessPlatform.h"

#include <gtest/gtest.h>

#include <ctime>

#include "cli/Keyboard.h"

namespace tessaryn {
namespace {

TEST(Questions, AreAnsweredFromTheTopDown) {
    Headless = {};
    ForgetQuestions();
    Form outer("Outer");
    Form inner("Inner");
    std::string order;
    const auto asks = [&](char letter) { return [&order, letter] { order += letter; }; };
    ShowModal(outer, asks('o'));
    ShowModal(inner, asks('i'));
    MsgBox({"Sure?", "WARNING", Buttons::YesNo, Answer::No},
           [&](Answer answer) { order += answer == Answer::No ? 'n' : '?'; });
    EXPECT_EQ(order, "") << "nothing goes on within the event";
    SettleQuestions();
    EXPECT_EQ(order, "n");
    outer.Hide();
    SettleQuestions();
    EXPECT_EQ(order, "n") << "another stands on it";
    EXPECT_EQ(&TopForm(), &inner);
    inner.Hide();
    SettleQuestions();
    EXPECT_EQ(order, "nio");
    EXPECT_FALSE(QuestionsOpen() || ModalFormOpen());
}

TEST(Keyboard, TypingALongTextTakesTimeInProportion) {
    Form form("Entry");
    TextBox line(form, "Line");
    const std::clock_t start = std::clock();
    ReplaceByTyping(line, std::string(1'000'000, 'x'));
    EXPECT_EQ(line.Text.size(), 1'000'000u);
    EXPECT_LT(std::clock() - start, 8 * CLOCKS_PER_SEC) << "less than a second is right";
}

}  // namespace
}  // namespace tessaryn
