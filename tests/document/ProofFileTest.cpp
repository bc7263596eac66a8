// The proof file, byte by byte, and what is refused on reading it.
#include "document/ProofFile.h"
#include "output/ProofCommands.h"
#include "platform/Events.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "OwnDirectory.h"
#include "Steps.h"
#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/Invariants.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/SaveChanges.h"
#include "output/SavingOver.h"
#include "output/WrittenProof.h"
#include "platform/Files.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

class ProofFileTest : public OwnDirectory {
  protected:
    ProofFileTest() { StartHeadless(); }
    // Opens a file as the user does. True if it replaced the proof.
    static bool Open(const std::string& path) {
        OperationCancelled = false;
        ProofChanged = false;
        Headless.Files.push_back(path);
        SendChoose(Proof.optOpen);
        return !OperationCancelled;
    }
};

const char* const BlockProof = "+ P & Q ; Split 1 ; Conclusion";

// A closed block, an open one with a comment, a folded line.
std::string BuildVariedProof() {
    return Do(std::string(BlockProof) +
              " ; + ALL(a):[Pppppppppp(a) & Qqqqqqqqqqqqq(a)]\\r\\n=> R(x)"
              " ; click 5 ; set CommentBox \"why\" ; choose Continue ; Join 4 5");
}

TEST_F(ProofFileTest, PremiseByteForByte) {
    ASSERT_EQ(Do("+ P"), "");
    EditAt(1).SpareVars = " x ";
    EditAt(1).Flagged = true;
    EditAt(1).NewNumber = 7;
    const std::string expected(
        "Tessaryn 1\x01\x00\x00\x00"
        "\x01\x00\x00\x00\x00\x00"                          // rule, lines
        "\x00\x00\x00\x00\x00\x00\x03\x00 x \xFF\xFF"       // names, visible
        "\x01\x00\x00\x00\x00\x00\x00\x00\x03\x00\x00\x00"  // indexes
        "\x03\x00\x00\x00\x07\x00\x00\x00\x0D\x00\x00\x00"
        "\x01\x00\x00\x00\xFF\xFF\x07\x00\xFF\xFF"  // on the display, marks, highlight
        "\x11\x00"
        "1\tP\r\n\tPremise\r\n\r\n",
        86);
    EXPECT_EQ(WriteProof(), expected);
    EditAt(1) = ReadProof(expected)->StmtTable[1];
    EXPECT_EQ(WriteProof(), expected);
}

TEST_F(ProofFileTest, SavedOpenedAndSavedAgainIsTheSame) {
    ASSERT_EQ(BuildVariedProof(), "");
    ProofCaption = "Größe";
    ProofFileName = Path("a.proof");
    SaveProofFile(ProofFileName, [](bool) {});
    EXPECT_FALSE(ProofChanged);
    const std::string first = *ReadWholeFile(Path("a.proof"));
    const std::string leftover = OldLeftover();
    ASSERT_TRUE(Open(Path("a.proof")));
    EXPECT_FALSE(fs::exists(leftover));
    EXPECT_EQ(CheckDocument(), "");
    EXPECT_EQ(Proof.Caption, " Größe  -  " + Path("a.proof"));
    EXPECT_FALSE(StmtTable[1].Visible) << "a closed block is folded";
    EXPECT_TRUE(StmtTable[4].Visible);
    const std::string second = WriteProof();
    ASSERT_EQ(second.size(), first.size());
    ASSERT_TRUE(Open(Path("a.proof")));
    EXPECT_EQ(WriteProof(), second);
}

TEST_F(ProofFileTest, EmptyProofs) {
    ProofFileName = Path("empty.proof");
    SaveProofFile(ProofFileName, [](bool) {});
    ASSERT_TRUE(Open(Path("empty.proof")));
    EXPECT_EQ(IntroEnd, -4);
    RuleMode = 1;
    ASSERT_EQ(RunScript("open " + Quoted(Path("empty.proof")) + "\n" + EnterPremise("P")).error,
              "");
    EXPECT_EQ(StmtTable[1].StartLine, 1);
    EXPECT_EQ(StmtTable[1].ViewerStartLine, 1);

    const std::string intro = "Some words.\r\n\r\n";
    WriteFile("intro.proof", std::string("Tessaryn 1\0\0\0\0\x0F\0", 16) + intro);
    ASSERT_TRUE(Open(Path("intro.proof")));
    EXPECT_EQ(IntroEnd, 11);
    EXPECT_EQ(Proof.RTB.GetText(), intro);
}

TEST_F(ProofFileTest, LongTextGetsALongLength) {
    StartProof();
    AddLine("P", Rule::Premise, std::string(70000, 'c'));
    const std::string bytes = WriteProof();
    const std::string length("\xFF\xFF\x85\x11\x01\x00", 6);  // 70,021
    EXPECT_NE(bytes.find(length + "ccc"), std::string::npos);
    EXPECT_EQ(ReadProof(bytes)->ProofText, ProofText.View());
}

TEST_F(ProofFileTest, OneByteTextIsConvertedWithItsIndexes) {
    ASSERT_EQ(Do(BlockProof), "");
    ProofText.Replace(0, 0,
                      "\xE4\x80"
                      "b\r\n\r\n");  // "ä€b" in Windows-1252
    StmtTable.EditEach([](Statement& stmt) { ShiftIndexes(stmt, 7); });
    EditAt(1).StartLine = 1;
    EditAt(1).EndUserComment = 3;
    WriteFile("old.proof", WriteProof());
    ASSERT_TRUE(Open(Path("old.proof")));
    EXPECT_EQ(CheckDocument(), "");
    EXPECT_EQ(ProofSlice(StmtTable[1].StartLine, StmtTable[1].EndUserComment), "ä€b");
    EXPECT_EQ(StmtText(4), "P & Q => Q");
}

TEST_F(ProofFileTest, EveryCutIsRefusedAndTheProofStays) {
    ASSERT_EQ(BuildVariedProof(), "");
    const std::string whole = WriteProof();
    ASSERT_TRUE(ReadProof(whole));
    EXPECT_TRUE(ReadProof(whole + "more")) << "bytes behind the text are never read";
    for (std::size_t length = 0; length < whole.size(); ++length) {
        EXPECT_FALSE(ReadProof(std::string_view(whole).substr(0, length))) << length;
    }
    WriteFile("cut.proof", whole.substr(0, whole.size() - 1));
    ProofFileName = "kept.proof";
    EXPECT_FALSE(Open(Path("cut.proof")));
    EXPECT_EQ(Proof.StatusLine.GetText(), "Open: Unable to open proof file");
    EXPECT_EQ(WriteProof(), whole);
    EXPECT_EQ(ProofFileName, "kept.proof");
}

TEST_F(ProofFileTest, DamageIsRefused) {
    const std::pair<const char*, std::function<void()>> damages[] = {
        {"magic", nullptr},
        {"rule 0", [] { EditAt(2).Rule = 0; }},
        {"rule 55", [] { EditAt(2).Rule = 55; }},
        {"rule -1", [] { EditAt(2).Rule = -1; }},
        {"negative reference", [] { EditAt(2).Arg1 = -1; }},
        {"reference to itself", [] { EditAt(2).Arg1 = 2; }},
        {"second reference forward", [] { EditAt(2).Arg2 = 3; }},
        {"premise closed by no Conclusion", [] { EditAt(1).Arg1 = 3; }},
        {"premise closed outside the table", [] { EditAt(1).Arg1 = 99; }},
        {"premise closed backward", [] { EditAt(5).Arg1 = 4; }},
        {"Conclusion without premise", [] { EditAt(4).Arg1 = 0; }},
        {"Conclusion without premise, which is open", [] { EditAt(4).Arg1 = EditAt(1).Arg1 = 0; }},
        {"Conclusion of another line", [] { EditAt(4).Arg1 = 2; }},
        {"Conclusion of an open premise", [] { EditAt(1).Arg1 = 0; }},
        {"first block ahead of the text", [] { EditAt(1).StartLine = 0; }},
        {"no room for an introduction's line ends",
         [] {
             ProofText.Replace(0, 0, "abc");
             StmtTable.EditEach([](Statement& stmt) { ShiftIndexes(stmt, 3); });
         }},
        {"empty annotation", [] { EditAt(3).EndRule = StmtTable[3].StartRule - 1; }},
        {"behind the end", [] { EditAt(6).EndRule += 1; }},
        {"huge index", [] { EditAt(6).EndRule = 0x7FFFFFFF; }},
        {"an index inside a character",
         [] {
             ProofText.Replace(static_cast<std::size_t>(EditAt(5).EndUserComment--) - 2, 2, "é");
         }},
        {"line ends that are longer as UTF-8",
         [] { ProofText.Replace(static_cast<std::size_t>(At(3).EndStmt), 3, "\xA6\xA6\xA6"); }},
        {"an index outside a text that is no UTF-8",
         [] { ProofText += "\xA6", EditAt(2).StartStmt = 0x7FFFFFFF; }},
        {"indexes that overflow",
         [] { EditAt(6).StartRule = -0x7FFFFFFF, EditAt(6).EndStmt = 0x7FFFFFFF; }},
    };
    for (const auto& [what, damage] : damages) {
        ASSERT_EQ(BuildVariedProof(), "");
        if (damage) damage();
        std::string bytes = WriteProof();
        if (!damage) bytes[9] = '2';
        EXPECT_FALSE(ReadProof(bytes)) << what;
    }
    EXPECT_FALSE(ReadProof(std::string("Tessaryn 1\xFF\xFF\0\0\0\0", 16))) << "negative count";
    EXPECT_FALSE(ReadProof(std::string("Tessaryn 1\0\0\0\0\1\0P", 17))) << "count 0 of a proof";
}

TEST_F(ProofFileTest, MarksOfAFileCountInNoDeletion) {
    const std::string open = "open " + Quoted(Path("marked.proof"));
    ASSERT_EQ(Do("! A ; ! B ; ! C ; Join 3 2 ; ! D"), "");
    EditAt(2).Flagged = true;
    EditAt(2).NewNumber = 1;
    WriteFile("marked.proof", WriteProof());
    for (const char* deletion : {"DelAllSubsequent 5", "DeleteAllRef 5 ; no form"}) {
        const std::string result = " ; count 4 ; 2 = B ; 4 by Join, 3, 2";
        EXPECT_EQ(Do(open + " ; " + deletion + result), "");
        EXPECT_FALSE(At(2).Flagged);
    }
}

TEST_F(ProofFileTest, UnlexableTextIsShownUnformatted) {
    ASSERT_EQ(Do("+ P & Q ; + R & S"), "");
    ProofText.Replace(static_cast<std::size_t>(StmtTable[1].StartStmt), 1, "$");
    WriteFile("odd.proof", WriteProof());
    ASSERT_TRUE(Open(Path("odd.proof")));
    EXPECT_EQ(Proof.StatusLine.GetText(), "PARSER ERROR: 18. Illegal character $");
    EXPECT_NE(Proof.RTB.GetText().find("R & S"), std::string::npos) << "the rest is drawn";
    EXPECT_TRUE(Proof.Enabled);
    EXPECT_FALSE(Headless.Beeps.empty());
    for (MenuItem* rule : {&Proof.optJoin, &Proof.optSplit, &Proof.optDetachment, &Proof.optRename,
                           &Proof.optReorder, &Proof.optSpec}) {
        SendChoose(*rule);
        SetPrompt("");
        SendClick(Proof.RTB, 2);
        EXPECT_EQ(Proof.StatusLine.GetText(), "PARSER ERROR: 18. Illegal character $")
            << rule->Name;
        EXPECT_EQ(StmtCount, 2) << rule->Name;
    }
}

TEST_F(ProofFileTest, WhatAnotherProgramWroteIsNotSavedOverUnasked) {
    ASSERT_EQ(Build(EnterPremise("P")), "");
    const std::string path = Path("a.proof");
    const std::string own = WriteProof();
    const std::string other(own.size(), 'x');
    const auto rewrite = [&](const std::string& bytes) {  // at the same moment, as it were
        const auto time = fs::last_write_time(path);
        WriteFile("a.proof", bytes);
        fs::last_write_time(path, time);
    };
    const auto save = [] { SendChoose(Proof.optSave); };
    const auto saveAs = [&] {
        Headless.Files.push_back(path);
        SendChoose(Proof.optSaveAs);
    };
    const auto saveAtNew = [] {
        SendChoose(Proof.optNew);
        SendChoose(SaveChanges.cmdYes);
    };
    const struct {
        const char* what;
        std::function<void()> happens, command;
        bool asks;
    } rows[] = {
        {"nothing", [] {}, save, false},
        {"touched", [&] { fs::last_write_time(path, fs::file_time_type::clock::now()); }, save,
         false},
        {"the same again", [&] { fs::remove(path), WriteFile("a.proof", own); }, save, false},
        {"gone", [&] { fs::remove(path); }, save, false},
        {"as long, as old", [&] { rewrite(other); }, save, true},
        {"longer", [&] { SeenProofFile = {}, Open(path), rewrite(own + "x"); }, saveAs, true},
        {"empty", [&] { rewrite(""); }, saveAtNew, true},
    };
    for (const auto& row : rows) {
        ProofFileName = path;
        SeenProofFile = {};
        SendChoose(Proof.optSave);
        row.happens();
        const std::optional<std::string> there = ReadWholeFile(path);
        ProofChanged = true;
        OperationCancelled = false;
        Headless.Messages.clear();
        row.command();
        EXPECT_EQ(ProofChanged && OperationCancelled && ReadWholeFile(path) == there, row.asks)
            << row.what;
        if (!row.asks) continue;
        ASSERT_EQ(Headless.Messages.size(), 1u) << row.what;
        EXPECT_EQ(Headless.Messages[0].text,
                  "The file was changed by another program. Save over it?");
        Headless.Answers.push_back(Answer::Yes);
        row.command();
        EXPECT_EQ(ReadWholeFile(path), own) << row.what;
    }
    EXPECT_EQ(StmtCount, 0) << "New went on";
}

TEST(ProofNames, ExtensionIsForced) {
    EXPECT_EQ(WithProofExtension("/a/x.txt"), "/a/x.proof");
    EXPECT_EQ(WithProofExtension("/a.b/x"), "/a.b/x.proof");
    EXPECT_EQ(WithProofExtension("x.y.z"), "x.y.proof");
}

}  // namespace
}  // namespace tessaryn
