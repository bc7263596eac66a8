// The window killed at any moment of a user's work: its next start offers what was there.
//
// TESSARYN_KILLS=200 kills that many, each within the program's own times.
#include <gtest/gtest.h>
#include <sys/prctl.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <vector>

#include "../Wanted.h"
#include "RandomUser.h"
#include "check/Check.h"
#include "desktop/Desktop.h"
#include "document/Document.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "mainwindow/Proof.h"
#include "output/Recovery.h"
#include "output/StartUp.h"
#include "platform/Events.h"
#include "platform/Files.h"
#include "view/Undo.h"

using namespace tessaryn;

namespace {

namespace fs = std::filesystem;

// Milliseconds, by a clock that all processes share.
long long Now() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::milliseconds>(now).count();
}

const std::string NothingUnsaved = "-";

std::string StateOf(const Document& proof) {
    const std::string content = std::string(proof.ProofText.View()) + '\n' + proof.ProofCaption;
    return std::to_string(std::hash<std::string>()(content));
}

// --- the user, in a process of its own

// What stood in the window, and from when on.
class History {
  public:
    explicit History(const std::string& path) : file_(path, std::ios::app) {}
    void Add(const std::string& state) {
        if (state != last_) file_ << Now() << ' ' << state << std::endl;
        last_ = state;
    }
    void AddOpenProof() { Add(ProofChanged ? StateOf(Doc) : NothingUnsaved); }

  private:
    std::ofstream file_;
    std::string last_;
};

// The start, up to where the user goes to work with what was restored.
void Start(const QString& home, History& history) {
    StartAtHome(home);
    Dispatch([] { StartUp.Close(); });
    const bool offered = Recovery.Visible;
    if (offered) Dispatch([] { SendChoose(Recovery.cmdRestore); });
    std::string fault = CheckDocument();
    if (fault.empty()) fault = check::CheckProof(WriteProof()).sentence;
    if (offered && !ProofChanged) fault = "the copy is not restored";
    history.Add(fault.empty() ? "ready" : "fault: " + fault);
    history.AddOpenProof();
    Proof.RecoveryTimer.Interval = Wanted("TESSARYN_INTERVAL", Proof.RecoveryTimer.Interval);
    Proof.RecoveryTimer.Tick = [&history] {
        history.AddOpenProof();
        KeepCopy();
    };
    SyncWindows();
}

TEST(Killed, DISABLED_AUserAtWork) {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    const QString home = QString::fromUtf8(qgetenv("TESSARYN_HOME"));
    const auto seed = static_cast<unsigned>(Wanted("TESSARYN_SEED", 1));
    History history((home + "/history").toStdString());
    RandomUser user(seed, home + "/proofs", (home + "/log").toStdString());
    Start(home, history);
    for (std::mt19937 random(seed);;) {
        user.Act();
        history.AddOpenProof();
        QTest::qWait(static_cast<int>(random() % 20));
        if (!Ending()) continue;
        EndAtHome();
        history.Add(NothingUnsaved);
        Start(home, history);
        ASSERT_FALSE(ProofChanged) << "an orderly end leaves nothing";
    }
}

// --- what becomes of it

using States = std::vector<std::pair<long long, std::string>>;  // from when on

class KilledWindow : public testing::Test {
  protected:
    // A window that is to be killed; once it is ready for work.
    void StartWindow(int number) {
        fs::remove(Path("history"));
        QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
        variables.insert(QStringLiteral("TESSARYN_HOME"), home_.path());
        variables.insert(QStringLiteral("TESSARYN_SEED"), QString::number(number));
        if (!ownTimes_) variables.insert(QStringLiteral("TESSARYN_INTERVAL"), "50");
        program_.setProcessEnvironment(variables);
        program_.setProcessChannelMode(QProcess::MergedChannels);
        program_.setStandardOutputFile(home_.filePath(QStringLiteral("output")));
        program_.start(QCoreApplication::applicationFilePath(),
                       {QStringLiteral("--gtest_also_run_disabled_tests"),
                        QStringLiteral("--gtest_filter=Killed.DISABLED_AUserAtWork")});
        ASSERT_TRUE(QTest::qWaitFor([this] { return ReadHistory().size() > 1; }, 60000));
    }

    // After a while. Remembers what the next start may find.
    void Kill() {
        // Longer than a copy may be behind.
        QTest::qSleep(behind_ * 5 / 4 + static_cast<int>(random_() % 1000) * behind_ / 1000);
        ASSERT_EQ(program_.state(), QProcess::Running);
        const long long seen = Now() - behind_;
        program_.kill();
        program_.waitForFinished();
        const States states = ReadHistory();
        expected_.clear();
        for (std::size_t i = 1; i < states.size(); ++i) {
            if (i + 1 == states.size() || states[i + 1].first >= seen) {
                expected_.insert(states[i].second);
            }
        }
    }

    // What the window that has just started found, or what is wrong with it.
    std::string Found() const {
        const States states = ReadHistory();
        return states[0].second == "ready" ? states[1].second : states[0].second;
    }

    // Does a file of the user's hold what was there, or one that keeps what was thrown away?
    bool AFileHoldsIt() const {
        for (const char* folder : {"proofs", "proofs/sub", "state/tessaryn/recovery"}) {
            for (const auto& entry : fs::directory_iterator(Path(folder))) {
                if (entry.path().filename().string().starts_with("unsaved-")) continue;
                const auto bytes = ReadWholeFile(entry.path().string());
                const auto proof = ReadProof(bytes.value_or(""));
                if (proof && expected_.contains(StateOf(*proof))) return true;
            }
        }
        return false;
    }

    States ReadHistory() const {
        std::ifstream file(Path("history"));
        States states;
        long long time = 0;
        for (std::string state; file >> time && std::getline(file >> std::ws, state);) {
            states.emplace_back(time, state);
        }
        return states;
    }
    std::string Path(const char* name) const {
        return home_.filePath(QString::fromLatin1(name)).toStdString();
    }

    const int kills_ = Wanted("TESSARYN_KILLS", 0);
    const bool ownTimes_ = kills_ > 0;
    const int behind_ = ownTimes_ ? 5000 : 1000;  // milliseconds, at most
    QTemporaryDir home_;
    QProcess program_;
    std::mt19937 random_{1};
    std::set<std::string> expected_{NothingUnsaved};
};

TEST_F(KilledWindow, OffersWhatWasThereWhenItIsStartedAgain) {
    int restored = 0;
    const int kills = ownTimes_ ? kills_ : 3;
    for (int number = 0; number <= kills; ++number) {
        const bool inAFile = number > 0 && AFileHoldsIt();
        StartWindow(number);
        if (HasFatalFailure()) break;
        const std::string found = Found();
        const bool isThere = expected_.contains(found) || (found == NothingUnsaved && inAFile);
        if (found != NothingUnsaved) ++restored;
        EXPECT_TRUE(isThere) << "start " << number << " found " << found;
        Kill();
        if (HasFailure()) break;
    }
    if (ownTimes_) std::cerr << restored << " of " << kills << " were restored" << std::endl;
    if (HasFailure()) home_.setAutoRemove(false);
    EXPECT_FALSE(HasFailure()) << "see " << Path("");
}

}  // namespace
