// The copy for the printer, its pages, and the form that asks for the lines.
#include <gtest/gtest.h>

#include "WrittenProof.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/PrintProof.h"
#include "output/Printing.h"
#include "platform/Events.h"
#include "platform/PageEnd.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

TEST(Printing, BreaksLinesAtTheFirstBlankBehindTheWidth) {
    const std::pair<const char*, const char*> rows[] = {
        {"abcde fg", "abcde\r\nfg"},
        {"ab cd ef", "ab cd\r\nef"},
        {"ab cdefg hi jklmnop q", "ab cdefg\r\nhi jklmnop\r\nq"},
        {"abcdefghij", "abcdefghij"},
        {"abcdefg\r\nhijkl m", "abcdefg\r\nhijkl\r\nm"},
        {"abc\r\nde fgh", "abc\r\nde fgh"},
        {"äöüäö ü", "äöüäö\r\nü"},  // characters count, not bytes
        {"abcdef ", "abcdef\r\n"},
        {"abcde ", "abcde "},  // the last character is not looked at
        {"", ""},
    };
    for (const auto& [text, broken] : rows) {
        std::string folded = text;
        InsertBreaks(folded, 5);
        EXPECT_EQ(folded, broken);
    }
}

TEST(Printing, CopyIsFlatBlackAndOfItsOwnSizes) {
    WriteSmallProof();
    ProofFileName = "/p/small.proof";
    BuildPrintCopy(1, 2);
    RichTextBox& copy = WorkArea.RTB;
    EXPECT_EQ(ConvertEpsilon(copy),
              "On < and é\r\n\r\n"
              "Über s & t: x @ s\r\n\r\n"
              "Let x > y\r\n\r\n"
              "1\tx @ s & y<x\r\n\tPremise\r\n\r\n"
              "2\tx @ s & y<x =>\r\n\ty<x\r\n\tConclusion, 1\r\n\r\n"
              "/p/small.proof");
    const auto format = [&](const std::string& part) {
        return copy.FormatAt(static_cast<int>(copy.GetText().find(part)));
    };
    EXPECT_EQ(format("On <"), (CharFormat{"Courier New", 12, 0, true}));
    EXPECT_EQ(format("e s & y"), (CharFormat{"Symbol", 10, 0, false}));
    EXPECT_EQ(format("Premise"), (CharFormat{"Courier New", 8, 0, false}));
    for (const char* part : {"ber", "Let", "\tPremise", "/p/"}) {
        EXPECT_EQ(format(part), (CharFormat{"Courier New", 10, 0, false})) << part;
    }

    // From line 2 on there is no introduction; an untitled proof says so.
    ProofFileName.clear();
    BuildPrintCopy(2, 2);
    EXPECT_EQ(ConvertEpsilon(copy),
              "On < and é\r\n\r\n"
              "2\tx @ s & y<x =>\r\n\ty<x\r\n\tConclusion, 1\r\n\r\n(Untitled)");
}

TEST(Printing, LongCaptionFoldsAndNothingBehindItIsBold) {
    StartProof(std::string(50, 'a') + " bbbbbbbbbb cc", "Intro");
    BuildPrintCopy(1, 0);
    const std::string& text = WorkArea.RTB.GetText();
    EXPECT_TRUE(text.starts_with(std::string(50, 'a') + " bbbbbbbbbb\r\ncc\r\n\r\nIntro"));
    const int end = static_cast<int>(text.find("cc")) + 2;
    EXPECT_TRUE(WorkArea.RTB.FormatAt(end - 1).Bold);
    EXPECT_FALSE(WorkArea.RTB.FormatAt(end).Bold);
}

TEST(Printing, PageEndsAheadOfAStatementAndNotInsideIt) {
    const std::string text =
        "An introduction in rows\n\n1\tP & Q =>\n\tR\n\tAxiom\n\n2\tQ\n\tAxiom\n";
    const auto at = [&](const char* part) { return static_cast<int>(text.find(part)); };
    const struct {
        const char* begin;  // of the page
        const char* room;   // up to there
        const char* end;
    } rows[] = {
        {"An", "rows", "rows"}, {"An", "\n1", "\n1"},
        {"An", "1", "1"},       {"An", "Q =>", "1"},
        {"An", "\tR", "1"},     {"An", "\tAxiom", "1"},
        {"1", "\n2", "\n2"},    {"1", "\tAxiom\n", "\tAxiom\n"},  // more than a page
        {"rows", "Q =>", "1"},  {"\tR", "\tAxiom", "\tAxiom"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(PageEnd(text, at(row.begin), at(row.room)), at(row.end)) << row.room;
    }
}

PrintResult Printed(int first, int last) {
    PrintResult result = PrintResult::Cancelled;
    PrintStatements(first, last, [&](PrintResult end) { result = end; });
    return result;
}

TEST(Printing, PagesHoldEverythingOnce) {
    StartProof();
    for (int i = 0; i < 200; ++i) AddLine("P & " + std::string(300, 'x'), Rule::Axiom);
    ASSERT_EQ(Printed(1, 200), PrintResult::Done);
    EXPECT_GT(Headless.Pages.size(), 15u);  // a long line takes several rows
    std::string all;
    for (const std::string& page : Headless.Pages) {
        EXPECT_FALSE(page.empty());
        EXPECT_FALSE(page.starts_with('\t')) << "a statement and its annotation are parted";
        all += page;
    }
    std::string copy = WorkArea.RTB.GetText();
    std::erase(copy, '\r');
    EXPECT_EQ(all, copy);
    Headless.HasPrinter = false;
    EXPECT_EQ(Printed(1, 1), PrintResult::Failed);
}

// Of the rest tells the table.
TEST(Printing, TheFormTakesTheLinesOfASelectionAndStaysWherePrintingFails) {
    StartProof();
    for (const char* name : {"P", "Q", "R"}) AddLine(name, Rule::Axiom);
    RelayoutViewer();
    ResetFonts();
    for (const auto& [first, last] : {std::pair(2, 3), {1, 2}}) {
        Proof.RTB.SelStart = StmtTable[first].ViewerStartLine - 1;
        Proof.RTB.SelLength =
            StmtTable[last].ViewerStartLine - StmtTable[first].ViewerStartLine + 1;
        Headless.HasPrinter = last == 2;
        SendChoose(Proof.optPrint);
        EXPECT_EQ(PrintProof.Text1.Text, std::to_string(first));
        EXPECT_EQ(PrintProof.Text2.Text, std::to_string(last));
        SendChoose(PrintProof.cmdContinue);
        EXPECT_EQ(PrintProof.Visible, !Headless.HasPrinter);
        EXPECT_EQ(PrintProof.StatusLine.Caption, Headless.HasPrinter ? "" : "Unable to print");
        PrintProof.Hide();
        SettleQuestions();
    }
    EXPECT_EQ(Headless.Pages,
              std::vector<std::string>{"1\tP\n\tAxiom\n\n2\tQ\n\tAxiom\n\n(Untitled)"});
}

}  // namespace
}  // namespace tessaryn
