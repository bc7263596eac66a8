// The box for expressions: its red mark and its clipboard.
#include <gtest/gtest.h>

#include <functional>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Keyboard.h"
#include "entry/TestParser.h"
#include "platform/Events.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

void OpenBox(const std::string& entry) {
    ASSERT_EQ(Build("choose optPremise\nset RTB " + Quoted(entry) + "\n"), "");
}

void SelectInBox(int start, int length) {
    TestParser.RTB.SelStart = start;
    TestParser.RTB.SelLength = length;
}

// The content as stored, with an element sign as "@" and whatever is red in brackets.
std::string Content() {
    RichTextBox& box = TestParser.RTB;
    const std::string text = ConvertEpsilon(box);
    std::string content;
    for (const FormatRun& run : box.Runs()) {
        const std::string part =
            text.substr(static_cast<std::size_t>(run.start), static_cast<std::size_t>(run.length));
        content += run.format.Color == Rgb(255, 0, 0) ? "{" + part + "}" : part;
    }
    return content;
}

TEST(EntryBox, MarksTheFaultUntilTheNextTry) {
    const std::pair<const char*, const char*> cases[] = {
        {"x @ s & ALL", "x @ s & {ALL}"},
        {"\r\n\r\nP <=> x", "\r\n\r\nP {<=>} x"},
        {"P & Q)", "P & Q{)}"},
        {"P $ Q", "P $ Q"},
    };
    for (const auto& [entry, marked] : cases) {
        OpenBox(entry);
        SendChoose(TestParser.cmdContinue);
        EXPECT_EQ(Content(), marked) << TestParser.StatusLine.Caption;
        SelectInBox(0, TestParser.RTB.TextLength());
        TestParser.RTB.SelText = "x+y";
        SendChoose(TestParser.cmdContinue);
        EXPECT_EQ(Content(), "x+y");
    }
}

TEST(EntryBox, WhatIsPutInTakesThePlaceOfTheSelection) {
    const std::pair<std::function<void()>, const char*> rows[] = {
        {[] { PressKey(TestParser, {.text = "@"}); }, "x@z"},
        {[] { SendChoose(TestParser.Menus.optelement); }, "x@z"},
        {[] { SendChoose(TestParser.Menus.optAnd); }, "x&z"},
    };
    for (const auto& [putIn, content] : rows) {
        OpenBox("xyyz");
        SelectInBox(1, 2);
        putIn();
        EXPECT_EQ(Content(), content);
    }
}

}  // namespace
}  // namespace tessaryn
