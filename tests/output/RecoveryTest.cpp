#include "output/Recovery.h"

#include <gtest/gtest.h>

#include "OwnDirectory.h"
#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/SaveChanges.h"
#include "platform/Events.h"
#include "platform/RunningMark.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

class RecoveryTest : public OwnDirectory {
  protected:
    // A program that keeps copies, with work that is in no file.
    void Work(const std::string& steps) {
        ASSERT_EQ(Do(steps), "");
        RecoveryDir = directory.string();
        StartKeepingCopies();
        KeepCopy();
    }
    // It ends as by a power cut, and is started anew.
    void Restart() {
        ForgetCopies();
        StartHeadless();
        RecoveryDir = directory.string();
        OfferRecovery([] {});
        SettleQuestions();
    }
    std::size_t Copies(const std::string& start) const {
        std::size_t count = 0;
        for (const std::string& name : Names()) {
            if (name.starts_with(start) && name.ends_with(".proof")) ++count;
        }
        return count;
    }
};

TEST_F(RecoveryTest, WhatWasLostIsOfferedUntilItIsRestoredOrDiscarded) {
    Work("+ P ; + Q ; Join 1 2");
    ProofFileName = Path("own.proof");
    SendChoose(Proof.optUndo);
    KeepCopy();
    Restart();
    ASSERT_TRUE(Recovery.Visible);
    EXPECT_EQ(Recovery.FileName.Caption, Path("own.proof"));
    SendChoose(Recovery.cmdLater);
    EXPECT_EQ(StmtCount, 0);
    Restart();
    SendChoose(Recovery.cmdRestore);
    EXPECT_EQ(StmtCount, 2);
    EXPECT_TRUE(ProofChanged);
    EXPECT_EQ(Copies("unsaved-"), 1u) << "it is this program's copy now";
    Restart();
    SendChoose(Recovery.cmdDiscard);
    EXPECT_TRUE(Names().empty());
    Restart();
    EXPECT_FALSE(Recovery.Visible);
}

TEST_F(RecoveryTest, ALivingProgramKeepsItsCopyToItself) {
    Work("+ P");
    OfferRecovery([] {});
    EXPECT_FALSE(Recovery.Visible);
}

TEST_F(RecoveryTest, TheCopyGoesWithTheChangesAndKnowsTheProofsFile) {
    Work("+ P ; + Q");
    Headless.Files.push_back(Path("own.proof"));
    SendChoose(Proof.optSave);
    EXPECT_EQ(Copies("unsaved-"), 0u);
    SendChoose(Proof.optUndo);
    KeepCopy();
    WriteFile("own.proof", "of another program");
    Restart();
    EXPECT_EQ(Recovery.FileName.Caption, Path("own.proof"));
    SendChoose(Recovery.cmdRestore);
    SendChoose(Proof.optSave);
    ASSERT_EQ(Headless.Messages.size(), 1u);
    EXPECT_EQ(Headless.Messages[0].text, "The file was changed by another program. Save over it?");
    EndKeepingCopies();
    EXPECT_EQ(Names(), std::set<std::string>{"own.proof"});
}

TEST_F(RecoveryTest, WhatIsThrownAwayStaysForAWeek) {
    std::size_t thrownAway = 0;
    for (Button* answer : {&SaveChanges.cmdYes, &SaveChanges.cmdNo}) {  // Yes without a name
        Work("+ P ; + Q");
        SendChoose(Proof.optNew);
        SendChoose(*answer);
        EXPECT_EQ(StmtCount, 0);
        EXPECT_EQ(Copies("unsaved-"), 0u);
        ASSERT_EQ(Copies("discarded-"), ++thrownAway);
    }
    std::filesystem::remove(Path(*Names().begin()));
    Restart();
    EXPECT_FALSE(Recovery.Visible);
    StartKeepingCopies();
    ASSERT_EQ(Copies("discarded-"), 1u);
    const std::string path = Path(*Names().begin());
    Headless.Files.push_back(path);
    SendChoose(Proof.optOpen);
    EXPECT_EQ(StmtCount, 2);
    const auto now = std::filesystem::last_write_time(path);
    std::filesystem::last_write_time(path, now - std::chrono::hours(7 * 24 + 1));
    StartKeepingCopies();
    EXPECT_EQ(Copies("discarded-"), 0u);
}

}  // namespace
}  // namespace tessaryn
