#include "output/Recovery.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <optional>
#include <random>
#include <system_error>
#include <utility>
#include <vector>

#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "output/ProofCommands.h"
#include "output/SavingOver.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/RunningMark.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr const char* Unsaved = "unsaved-";
constexpr const char* Discarded = "discarded-";
constexpr const char* ProofEnding = ".proof";
constexpr const char* MarkEnding = ".lock";
constexpr int Interval = 2000;  // milliseconds
constexpr auto KeptFor = 7 * 24h;

// What this program keeps.
struct KeptCopy {
    std::string path;                // "" until there was something to keep
    std::optional<Document> latest;  // what the copy holds, or is about to
    bool writing = false;            // one is being written
    bool unwanted = false;           // and is to go as soon as it is there
    bool failed = false;             // which has been told
};
KeptCopy Kept;

bool IsSame(const Document& one, const Document& other) {
    return one.StmtCount == other.StmtCount &&
           one.StmtTable.SharedTail(other.StmtTable) == one.StmtCount &&
           one.ProofText.SharesBytes(other.ProofText) &&
           one.ProofText.size() == other.ProofText.size() &&
           one.ProofCaption == other.ProofCaption && one.IntroEnd == other.IntroEnd;
}

std::string WithEnding(const std::string& copy, const char* ending) {
    return fs::path(copy).replace_extension(ending).string();
}

// --- the file that the proof belongs to, behind the text of a copy

std::string AboutOwnFile() {
    ByteWriter out;
    out.String(ProofFileName);
    out.String(std::to_string(SeenProofFile.size));
    out.String(std::to_string(SeenProofFile.print.length));
    out.String(std::to_string(SeenProofFile.print.hash));
    return out.Take();
}

std::uint64_t NumberIn(const std::string& text) {
    return std::strtoull(text.c_str(), nullptr, 10);
}

SeenFile OwnFile(ByteReader& in) {
    SeenFile file;
    file.path = in.String();
    file.size = NumberIn(in.String());
    file.print.length = NumberIn(in.String());
    file.print.hash = NumberIn(in.String());
    return in.Good() ? file : SeenFile{};
}

// --- names

std::string NewCopyPath() {
    std::array<char, 9> random{};
    std::snprintf(random.data(), random.size(), "%08x", std::random_device{}());
    return RecoveryDir + "/" + Unsaved + MachineName() + "-" + random.data() + ProofEnding;
}

// "discarded-20261123-101500-sets.proof"
std::string DiscardedPath() {
    const std::time_t now = std::time(nullptr);
    std::array<char, 20> time{};
    std::strftime(time.data(), time.size(), "%Y%m%d-%H%M%S", std::localtime(&now));
    const std::string name =
        ProofFileName.empty() ? "untitled" : fs::path(ProofFileName).stem().string();
    const std::string start = RecoveryDir + "/" + Discarded + time.data() + "-" + name;
    std::error_code error;
    std::string path = start + ProofEnding;
    for (int i = 2; fs::exists(path, error); ++i) {
        path = start + "-" + std::to_string(i) + ProofEnding;
    }
    return path;
}

template <class Visit>
void EachFile(const char* start, const char* ending, Visit visit) {
    std::error_code error;
    fs::directory_iterator entry(RecoveryDir, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        if (name.starts_with(start) && name.ends_with(ending)) visit(entry->path());
    }
}

bool IsOlderThan(const fs::path& file, std::chrono::seconds age) {
    std::error_code error;
    const auto written = fs::last_write_time(file, error);
    return !error && fs::file_time_type::clock::now() - written > age;
}

// Left by a program of this machine that holds no mark, or by one of another that has long been
// silent: its lock may be out of sight.
bool IsLeftOver(const fs::path& copy) {
    if (MarkIsHeld(WithEnding(copy.string(), MarkEnding))) return false;
    const std::string own = Unsaved + MachineName() + "-";
    return copy.filename().string().starts_with(own) || IsOlderThan(copy, 24h);
}

std::vector<fs::path> LeftOverCopies() {
    std::vector<fs::path> copies;
    EachFile(Unsaved, ProofEnding, [&](const fs::path& copy) {
        if (IsLeftOver(copy)) copies.push_back(copy);
    });
    std::error_code error;
    std::sort(copies.begin(), copies.end(), [&](const fs::path& one, const fs::path& other) {
        return fs::last_write_time(one, error) > fs::last_write_time(other, error);
    });
    return copies;
}

void Remove(const std::string& copy) {
    std::error_code error;
    fs::remove(copy, error);
    fs::remove(WithEnding(copy, MarkEnding), error);
}

void TellOnce(const std::string& fault) {
    if (!Kept.failed) Tell("No copy of the unsaved proof can be kept. " + fault);
    Kept.failed = true;
}

void CopyWritten(const std::string& fault) {
    Kept.writing = false;
    if (!fault.empty()) {
        Kept.latest.reset();
        TellOnce(fault);
    }
    std::error_code error;
    if (std::exchange(Kept.unwanted, false)) fs::remove(Kept.path, error);
}

// --- restoring

std::optional<Document> ReadCopy(const std::string& path, SeenFile& ownFile) {
    const std::optional<std::string> bytes = ReadWholeFile(path);
    if (!bytes) return std::nullopt;
    ByteReader in(*bytes);
    std::optional<Document> proof = ReadProof(in);
    if (proof) ownFile = OwnFile(in);
    return proof;
}

void Restore(const std::string& copy) {
    SeenFile ownFile;
    std::optional<Document> proof = ReadCopy(copy, ownFile);
    if (!proof) {
        Beep("The copy can't be read: it stays where it is.");
        return;
    }
    TakeOver(*proof);
    ProofFileName = Proof.CommonDialog1.FileName = ownFile.path;
    SeenProofFile = ownFile;
    Proof.Caption = ProofTitle();
    ProofChanged = true;
    // From now on it is this program's own.
    Kept = {};
    Kept.path = NewCopyPath();
    std::error_code error;
    if (!HoldMark(WithEnding(Kept.path, MarkEnding))) return;
    fs::rename(copy, Kept.path, error);
    if (!error) Remove(copy);
    KeepCopy();
}

}  // namespace

std::string FindRecoveryDir() {
    const std::string state = UserDirectory("XDG_STATE_HOME", "/.local/state");
    if (state.empty()) return "";
    const fs::path directory = fs::path(state) / "tessaryn" / "recovery";
    std::error_code error;
    fs::create_directories(directory, error);
    if (!fs::is_directory(directory, error)) return "";
    fs::permissions(directory, fs::perms::owner_all, error);
    return directory.string();
}

void StartKeepingCopies() {
    Kept = {};
    if (RecoveryDir.empty()) return;
    std::error_code error;
    EachFile(Discarded, ProofEnding, [&](const fs::path& file) {
        if (IsOlderThan(file, KeptFor)) fs::remove(file, error);
    });
    EachFile(Unsaved, MarkEnding, [&](const fs::path& mark) {  // of a program that had nothing
        const bool alone = !fs::exists(WithEnding(mark.string(), ProofEnding), error);
        if (alone && !MarkIsHeld(mark.string())) fs::remove(mark, error);
    });
    Proof.RecoveryTimer.Interval = Interval;
    Proof.RecoveryTimer.Tick = KeepCopy;
    Proof.RecoveryTimer.Enabled = true;
}

void KeepCopy() {
    if (RecoveryDir.empty() || !ProofChanged || Kept.writing) return;
    if (Kept.latest && IsSame(*Kept.latest, Doc)) return;
    if (Kept.path.empty()) Kept.path = NewCopyPath();
    if (!HoldMark(WithEnding(Kept.path, MarkEnding))) {
        return TellOnce("The folder " + RecoveryDir + " can't be written.");
    }
    Kept.latest = Doc;
    Kept.writing = true;
    WriteBehind(
        Kept.path,
        [copy = CopyForAnotherThread(), about = AboutOwnFile()] {
            return WriteProof(copy) + about;
        },
        CopyWritten);
}

void DropCopy() {
    Kept.latest.reset();
    if (Kept.path.empty()) return;
    Kept.unwanted = Kept.writing;
    std::error_code error;
    fs::remove(Kept.path, error);
}

void KeepDiscarded() {
    if (RecoveryDir.empty()) return;
    const std::string fault = ReplaceFile(DiscardedPath(), WriteProof() + AboutOwnFile());
    if (!fault.empty()) TellOnce(fault);
}

void EndKeepingCopies() {
    DropCopy();
    Proof.RecoveryTimer.Enabled = false;
    DropMarks();
    Kept = {};
}

void ForgetCopies() {
    RecoveryDir.clear();
    DropMarks();
    Kept = {};
}

RecoveryForm::RecoveryForm() : Form("Recovery", "WARNING") {
    cmdRestore.Click = [this] {
        RunHandler([this] { Restore(Copy); });
        Hide();
    };
    cmdDiscard.Click = [this] {
        Remove(Copy);
        Hide();
    };
    cmdLater.Click = [this] { Close(); };
    DefaultButton = &cmdRestore;
}

void RecoveryForm::Activated() {
    SeenFile ownFile;
    const std::optional<Document> proof = ReadCopy(Copy, ownFile);
    FileName.Caption = ownFile.path.empty() ? "(Untitled file)" : ownFile.path;
    cmdRestore.Enabled = proof.has_value();
    cmdRestore.SetFocus();
}

void OfferRecovery(const EventHandler& then) {
    const std::vector<fs::path> copies =
        RecoveryDir.empty() ? std::vector<fs::path>() : LeftOverCopies();
    if (copies.empty()) return then();
    Recovery.Copy = copies.front().string();
    AskIn(Recovery, then);
}

}  // namespace tessaryn
