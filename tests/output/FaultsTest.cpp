// Saving where the system fails: whichever call it is, the file is the old one or the new one, the
// user is told if it is the old one, and nothing is left beside it.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>

#include "Faults.h"
#include "OwnDirectory.h"
#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/HTML.h"
#include "output/ProofCommands.h"
#include "output/Recovery.h"
#include "platform/Events.h"
#include "platform/Files.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

struct Failing {
    int effect;
    const char* reason;  // of what it fails
};
constexpr Failing EveryFault[] = {{ENOSPC, "The disk is full."},
                                  {EDQUOT, "Your share of the disk is used up."},
                                  {EIO, "The system reports: Input/output error."},
                                  {EINTR, "none: it is done again"},
                                  {ShortWrite, "none: the rest is written"}};

class Faults : public OwnDirectory {
  protected:
    // Does something with a fault in each of the calls that it makes in the directory, one after
    // the other; `prepare` comes ahead of each.
    template <class Prepare, class Act, class Look>
    void WithEachFault(Prepare prepare, Act act, Look look) {
        for (const Failing& fault : EveryFault) {
            bool reached = true;
            for (int call = 1; reached; ++call) {
                prepare();
                InjectFault(directory.c_str(), call, fault.effect);
                act();
                reached = CallsSoFar() >= call;
                InjectFault("", 0, 0);
                look(fault);
                ASSERT_FALSE(HasFailure()) << "call " << call << " of " << fault.reason;
            }
        }
    }
};

TEST_F(Faults, SavingLeavesTheOldFileOrTheNewOne) {
    ASSERT_EQ(Do("+ P & Q"), "");
    const std::string old = WriteProof();
    ASSERT_EQ(Do("+ P & Q ; Split 1"), "");
    const std::string changed = WriteProof();
    const std::string page = HTMLPage() + "\r\n";
    for (MenuItem* item : {&Proof.optSave, &Proof.optHTML}) {
        const bool saves = item == &Proof.optSave;
        const std::string name = saves ? "own.proof" : "own.html";
        std::set<std::string> names;
        const auto prepare = [&] {
            StartHeadless();
            WriteFile(name, old);
            names = Names();
            Doc = *ReadProof(changed);
            ProofChanged = true;
            ProofFileName = Path("own.proof");
            Headless.Files.push_back(Path(name));
        };
        const auto look = [&](const Failing& fault) {
            const std::string now = ReadWholeFile(Path(name)).value_or("");
            EXPECT_EQ(Names(), names);
            const bool failed = !Headless.Beeps.empty();
            EXPECT_EQ(now, failed ? old : saves ? changed : page);
            EXPECT_TRUE(!saves || ProofChanged == failed);
            EXPECT_EQ(Headless.Beeps, std::vector<std::string>(failed ? 1 : 0, fault.reason));
        };
        WithEachFault(
            prepare, [&] { SendChoose(*item); }, look);
    }
}

TEST_F(Faults, ACopyThatCannotBeKeptIsToldOnce) {
    const auto prepare = [&] {
        ForgetCopies();
        ASSERT_EQ(Do("+ P & Q"), "");
        RecoveryDir = directory.string();
        StartKeepingCopies();
    };
    const auto keepTwo = [&] {
        KeepCopy();
        SendChoose(Proof.optOrNot);
        KeepCopy();
    };
    WithEachFault(prepare, keepTwo, [&](const Failing& fault) {
        ASSERT_LE(Headless.Notes.size(), 1u);
        for (const std::string& note : Headless.Notes) {
            EXPECT_TRUE(note.ends_with(fault.reason) || note.ends_with("can't be written."));
        }
        EndKeepingCopies();
        EXPECT_TRUE(Names().empty());
    });
}

// Ahead of each call, the process ends as by a power cut.
TEST_F(Faults, AProcessThatEndsWhileItWritesLeavesTheOldFileOrTheNewOne) {
    ASSERT_EQ(Do("+ P & Q ; save \"" + Path("own.proof") + "\""), "");
    const std::string page = HTMLPage() + "\r\n";
    const auto writePage = [&](const std::string& variables) {
        const std::string command = variables + " '" TESSARYN_CLI "' html '" + Path("own.proof") +
                                    "' '" + Path("own.html") + "' 2>/dev/null";
        return std::system(command.c_str()) == 0;
    };
    for (int call = 1; call < 100; ++call) {
        WriteFile("own.html", "old");
        const bool ended = writePage("LD_PRELOAD='" TESSARYN_FAULTS
                                     "' ASAN_OPTIONS=verify_asan_link_order=0 TESSARYN_FAULT='" +
                                     directory.string() + ":" + std::to_string(call) + ":-2'");
        const std::string now = ReadWholeFile(Path("own.html")).value_or("");
        EXPECT_TRUE(now == page || (now == "old" && !ended)) << "call " << call;
        EXPECT_TRUE(writePage(""));
        EXPECT_EQ(Names(), (std::set<std::string>{"own.html", "own.proof"})) << "call " << call;
        if (ended && call > 8) return;
    }
    FAIL() << "it never gets to its end";
}

}  // namespace
}  // namespace tessaryn
