// The page for a browser, byte for byte, and the ways in which it is not written.
#include <gtest/gtest.h>

#include "Workbench.h"
#include "WrittenProof.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/HTML.h"
#include "platform/Events.h"
#include "platform/Files.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

const std::string Blue = R"(<font size="3" face="Courier New" color="#000096">)";
const std::string Black = R"(<font size="3" face="Courier New" color="#000000">)";
const std::string Grey = R"(<font size="3" face="Courier New" color="#808080">)";

TEST(Html, HoldsCaptionIntroductionCommentsAndHiddenLines) {
    WriteSmallProof();
    EXPECT_EQ(HTMLPage(), "<html><head><title>On < and &#233;</title></head><body><pre>" + Blue +
                              "<b>On < and &#233;</b></font>\r\n\r\n" + Blue +
                              "&#220;ber s & t: x &#949; s\r\n\r\n</font>" + Blue +
                              "\tLet x &gt; y</font>" + Black +
                              "\r\n\r\n\t1\tx &#949; s & y&lt;x</font>" + Grey +
                              "\r\n\t\tPremise\r\n\r\n</font>" + Black +
                              "2\tx &#949; s & y&lt;x =&gt;\r\n\ty&lt;x</font>" + Grey +
                              "\r\n\tConclusion, 1\r\n\r\n</font></pre></body></html>");
}

TEST(Html, CharactersBeyondAsciiAreReferences) {
    StartProof();
    EXPECT_EQ(HTMLPage(),
              "<html><head><title>Untitled</title></head><body><pre></pre></body></html>");
    StartProof("", "😀\xFF");  // a character of four bytes, and then no UTF-8
    EXPECT_NE(HTMLPage().find("&#240;&#376;&#732;&#8364;&#255;"), std::string::npos);
    StartProof("", "😀 ∀");
    EXPECT_NE(HTMLPage().find("&#128512; &#8704;"), std::string::npos);
}

TEST(Html, CommandSuggestsANameAndLeavesTheProofAlone) {
    ASSERT_EQ(Build(EnterPremise("x @ s")), "");
    ProofFileName = "/home/me/v1.2/sets.proof";
    Proof.CommonDialog1.FileName = ProofFileName;
    const std::string page = testing::TempDir() + "tessaryn-page.html";
    Headless.Files = {page};
    SetPrompt("Join:  Click");
    SendChoose(Proof.optHTML);
    ASSERT_EQ(Headless.FileDialogs.size(), 1u);
    EXPECT_EQ(Headless.FileDialogs[0].FileName, "/home/me/v1.2/sets.html");
    EXPECT_EQ(Headless.FileDialogs[0].Filter, "HTML (*.html)|*.html");
    EXPECT_TRUE(Headless.FileDialogs[0].OverwritePrompt);
    EXPECT_EQ(ReadWholeFile(page), HTMLPage() + "\r\n");
    EXPECT_EQ(Proof.StatusLine.GetText(), "Join:  Click");
    EXPECT_EQ(ProofFileName, "/home/me/v1.2/sets.proof");
    EXPECT_TRUE(ProofChanged);

    // What a browser would not show as it stands is told of, once the page is there.
    EXPECT_TRUE(Headless.Notes.empty());
    ProofCaption = "x < y";
    Headless.Files = {page};
    SendChoose(Proof.optHTML);
    ASSERT_EQ(Headless.Notes.size(), 1u);
    EXPECT_TRUE(Headless.Notes[0].starts_with("The caption holds \"<\""));
    EXPECT_TRUE(Headless.Beeps.empty());

    Headless.Files = {testing::TempDir()};  // a directory
    SendChoose(Proof.optHTML);
    ASSERT_EQ(Headless.Messages.size(), 1u);
    EXPECT_EQ(Headless.Messages[0].title, "WARNING");
    EXPECT_EQ(Headless.Messages[0].text, "Unable to save HTML file");
    EXPECT_EQ(Headless.Notes.size(), 1u);
    EXPECT_EQ(Proof.MousePointer, Pointer::Default);
}

}  // namespace
}  // namespace tessaryn
