// What boxes take in and what surfaces hand out: the element sign and the triangle have no
// character of their own in other programs.
#include "view/TextExchange.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "Workbench.h"
#include "cli/FormState.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "editing/Find.h"
#include "entry/TestParser.h"
#include "mainwindow/Proof.h"
#include "platform/Events.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

TEST(TextExchange, EveryBoxTakesTheElementSignHoweverItIsWritten) {
    const std::string world = EnterAxiom("P");
    const struct {
        const char* opening;
        RichTextBox& box;
        const char* oneLine;  // how a line end comes in
    } boxes[] = {
        {"choose optPremise\n", TestParser.RTB, nullptr},
        {"click 1\n", Comment.CommentBox, nullptr},
        {"choose optCaption\n", EditCaption.RTB, " "},
        {"choose optFind\n", Find.SearchStringTextBox, "\r\n"},
    };
    const Clip clips[] = {
        {"\tx @ s\tε t∈u\r\nv", ""},
        {"from the word processor",
         "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1\\fcharset2 Symbol;}{\\f2\\fcharset2 Webdings;}}"
         "\\f0\\tab x \\f1 e\\f0  s\\tab \\u949? t\\f2 5\\f0  \\u8712?u\\par v}"},
    };
    for (const auto& [opening, box, lineEnd] : boxes) {
        for (const Clip& clip : clips) {
            ASSERT_EQ(Build(world + opening + "type \"ab\"\n"), "");
            box.SelStart = 1;
            SendPaste(box, clip);
            const std::string end = lineEnd == nullptr ? "\r\n" : lineEnd;
            EXPECT_EQ(BoxText(box), "ax @ s@ t@u" + end + "vb") << opening << clip.plain;
            EXPECT_EQ(box.SelStart, box.TextLength() - 1);
        }
    }
    EXPECT_EQ(Build("choose optCaption\n"), "");
    SendPaste(EditCaption.RTB, {"x @ s", ""});
    SendChoose(EditCaption.Continue);
    EXPECT_EQ(ProofCaption, "x @ s");
}

TEST(TextExchange, ADragWithinABoxMovesTextAsOneStep) {
    RichTextBox& box = TestParser.RTB;
    const struct {
        int from, length, to;
        const char* moved;
        int caret;
    } rows[] = {{0, 2, 4, "@cabd", 4}, {3, 1, 1, "acb@d", 2}, {0, 3, 2, "ab@cd", 0}};
    for (const auto& row : rows) {
        ASSERT_EQ(Build("choose optPremise\ntype \"ab@cd\"\n"), "");
        box.SelStart = row.from;
        box.SelLength = row.length;
        MoveSelection(box, row.to);
        EXPECT_EQ(BoxText(box), row.moved);
        EXPECT_EQ(box.SelStart, row.caret);
        SendChoose(TestParser.Tools.Undo);
        EXPECT_EQ(BoxText(box), "ab@cd");
    }
}

// Each stretch of the display, with what its look says and without; the rest comes late.
TEST(TextExchange, WhatIsAskedForLateIsWhatWasSelected) {
    ASSERT_EQ(
        Build(EnterPremise("x @ s") + "choose optConclusion\nchoose Continue\n" +
              "click 1\nset CommentBox \"e @ s\"\nchoose Continue\n" +
              "choose optIntro\nset CommentBox \"On e @ s\"\nchoose Continue\n" +
              EnterPremise("s @ t") + "choose optConclusion\nchoose Continue\n" + "click 2 rule\n"),
        "");
    RichTextBox& display = Proof.RTB;
    std::vector<RichText> selected;
    std::vector<std::function<RichText()>> late;
    for (int start = 0; start < display.TextLength(); ++start) {
        for (const int length : {1, 2, 9, 40, display.TextLength()}) {
            display.SelStart = start;
            display.SelLength = length;
            EXPECT_EQ(PlainSelection(display), PlainText(display.Selection()));
            selected.push_back(display.Selection());
            late.push_back(LateSelection(display));
        }
    }
    SendChoose(Proof.optLargeText);
    SendChoose(Proof.optShowAllStmts);
    SendChoose(Proof.optUndo);
    for (std::size_t i = 0; i < late.size(); ++i) EXPECT_EQ(late[i](), selected[i]);
}

TEST(TextExchange, WhatIsHandedOutHasNoSignsOfItsOwn) {
    ASSERT_EQ(Build(EnterPremise("x @ s") + "choose optConclusion\nchoose Continue\n"), "");
    RichTextBox& display = Proof.RTB;
    display.SelStart = 0;
    display.SelLength = display.TextLength();
    const Clip all = SelectionOf(display).make();
    EXPECT_EQ(all.plain,
              "\t1\tx @ s\r\n\t\tPremise\r\n\r\n"
              "2\tALL(x):ALL(s):[x @ s => x @ s]\r\n\tConclusion, 1\r\n\r\n");
    EXPECT_EQ(all.rtf, display.GetSelRTF()) << "with its look it is the same as ever";
    Proof.optRichTextMode.Checked = false;
    EXPECT_EQ(SelectionOf(display).make(), (Clip{all.plain, ""}));
}

}  // namespace
}  // namespace tessaryn
