// The platform without a display on forms of its own: modal forms in each other, keys and their
// editing, replacing a box's content.
#include "cli/HeadlessPlatform.h"

#include <gtest/gtest.h>

#include <ctime>

#include "cli/FormState.h"
#include "cli/Keyboard.h"

namespace tessaryn {
namespace {

struct EntryForm : Form {
    explicit EntryForm(std::string name = "Entry") : Form(std::move(name)) {
        Ok.Click = [this] { ++okPressed; };
        Line.Change = [this] { ++changes; };
        Text.KeyDown = [this](const KeyEvent& key) { return TakeAt(key); };
        Text.Change = [this] { ++changes; };
        DefaultButton = &Ok;
    }

    // As the editor of comments does: leaves a blank behind the caret.
    bool TakeAt(const KeyEvent& key) {
        ++keys;
        if (key.text != "@") return false;
        Text.SelText = std::string("e ");
        const int behind = Text.SelStart;
        Text.SelStart = behind - 2;
        Text.SelLength = 1;
        Text.SelFontName = std::string("Symbol");
        Text.SelStart = behind - 1;
        Text.SelFontName = std::string("Courier New");
        return true;
    }

    Label Hint{*this, "Hint", "hint"};
    TextBox Line{*this, "Line"};
    RichTextBox Text{*this, "Text"};
    Button Ok{*this, "Ok"};
    int okPressed = 0;
    int changes = 0;
    int keys = 0;
};

void Press(EntryForm& form, const std::string& name) {
    KeyEvent key;
    ASSERT_TRUE(KeyFromName(name, key));
    PressKey(form, key);
}

void TypeInto(EntryForm& form, const std::string& text) {
    for (std::size_t at = 0; at < text.size();) PressKey(form, TakeKey(text, at));
}

TEST(Questions, AreAnsweredFromTheTopDown) {
    Headless = {};
    ForgetQuestions();
    EntryForm outer("Outer");
    EntryForm inner("Inner");
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

TEST(Keyboard, EditsAOneLineBox) {
    EntryForm form;
    form.Line.SetFocus();
    TypeInto(form, "xéy");
    EXPECT_EQ(form.Line.Text, "xéy");
    EXPECT_EQ(form.changes, 3);
    form.Line.SelStart = 1;
    Press(form, "Del");
    EXPECT_EQ(form.Line.Text, "xy");
    Press(form, "Ctrl+A");
    Press(form, "Ctrl+X");
    EXPECT_EQ(form.Line.Text, "");
    Press(form, "Del");
    EXPECT_EQ(form.changes, 5) << "no change, no event";
    SetClipboard(TextAlone("a\n\tb∈"));
    Press(form, "Ctrl+V");
    Press(form, "Ctrl+V");
    EXPECT_EQ(form.Line.Text, "ab@ab@");
    form.Line.Text = "a";  // the program shortens it under the caret
    TypeInto(form, "b");
    EXPECT_EQ(form.Line.Text, "ab");
}

TEST(Keyboard, TypingALongTextTakesTimeInProportion) {
    EntryForm form;
    const std::clock_t start = std::clock();
    ReplaceByTyping(form.Line, std::string(1'000'000, 'x'));
    EXPECT_EQ(form.Line.Text.size(), 1'000'000u);
    EXPECT_LT(std::clock() - start, 8 * CLOCKS_PER_SEC) << "less than a second is right";
}

TEST(Keyboard, EnterPressesTheDefaultButtonWhereNoBoxTakesIt) {
    EntryForm form;
    form.Line.SetFocus();
    Press(form, "Enter");
    EXPECT_EQ(form.okPressed, 1);
    form.Text.SetFocus();
    Press(form, "Enter");
    EXPECT_EQ(form.Text.GetText(), "\r\n");
    form.Text.MultiLine = false;
    Press(form, "Enter");
    EXPECT_EQ(form.okPressed, 2);
    form.Text.ReadOnly = true;
    TypeInto(form, "x");
    EXPECT_EQ(form.Text.GetText(), "\r\n");
}

TEST(Keyboard, ReplacesContentByTyping) {
    EntryForm form;
    ReplaceByTyping(form.Text, "old");
    ReplaceByTyping(form.Text, "a @ b\n@");
    EXPECT_EQ(BoxText(form.Text), "a @ b\r\n@") << "nothing is left behind the caret";
    EXPECT_EQ(form.Text.FormatAt(4).Font, "Courier New");
    EXPECT_EQ(form.Text.GetSelStart(), form.Text.TextLength());
    EXPECT_EQ(form.ActiveControl, &form.Text);

    form.keys = form.changes = 0;
    form.Text.SelStart = 0;
    ReplaceByTyping(form.Text, "a @ b\r\n@");
    EXPECT_EQ(form.keys, 0) << "the text was there already";
    EXPECT_EQ(form.Text.GetSelStart(), form.Text.TextLength());
    ReplaceByTyping(form.Text, "");
    EXPECT_EQ(form.Text.TextLength(), 0);

    ReplaceByTyping(form.Line, "one\ntwo");
    EXPECT_EQ(form.Line.Text, "onetwo");
    EXPECT_EQ(form.Line.SelStart, 6);
}

}  // namespace
}  // namespace tessaryn
