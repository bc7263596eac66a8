#include "output/Settings.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <optional>
#include <utility>
#include <vector>

#include "document/Bytes.h"
#include "entry/Warning.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/ProofCommands.h"
#include "output/SaveChanges.h"
#include "platform/Files.h"
#include "platform/InputFile.h"
#include "text/Encoding.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

constexpr const char* DefaultDirFile = "DefaultDir.bin";
constexpr const char* RecentFilesFile = "RecentFiles.bin";
constexpr const char* FontSizeFile = "UserFontSize.bin";
constexpr const char* OptionFile = "UserOption.bin";

constexpr std::size_t MaxRecent = 5;

// A header, and as many strings as there are recent files, each of the greatest short length.
constexpr std::size_t LongestMeant = 12 + MaxRecent * (2 + LongString - 1);

std::string PathOf(const char* file) {
    return AppPath + "/" + file;
}

// What of a file may be meant, and a rest behind it; nothing if the file can't be read.
std::optional<std::string> MeantBytes(const std::string& path) {
    InputFile file(path);
    if (!file.Good()) return std::nullopt;
    const std::uint64_t size = std::min<std::uint64_t>(file.Size(), LongestMeant);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    std::size_t done = 0;
    while (const std::size_t got = file.Read(bytes.data() + done, bytes.size() - done)) done += got;
    bytes.resize(done);
    return bytes;
}

// For a file that is too long to be written anew for the sake of its rest. "", or why that failed.
std::string WriteInPlace(const std::string& path, const std::string& content) {
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file << content;
    file.close();
    return file.good() ? "" : "\"" + path + "\" can't be written.";
}

// Puts the content over the first bytes of the file. "", or why that failed.
std::string WriteOver(const std::string& path, std::string content) {
    if (InputFile(path).Size() > LongestMeant) return WriteInPlace(path, content);
    const std::optional<std::string> old = MeantBytes(path);
    if (old && old->size() > content.size()) content += old->substr(content.size());
    return ReplaceFile(path, content);
}

std::string WriteSetting(const char* file, std::string content) {
    return AppPath.empty() ? "" : WriteOver(PathOf(file), std::move(content));
}

std::string Header(int number) {
    ByteWriter out;
    out.Bytes(FileMagic);
    out.Int16(number);
    return out.Take();
}

std::string WithString(const std::string& content, const std::string& text) {
    ByteWriter out;
    out.Bytes(content);
    out.String(text);
    return out.Take();
}

std::string Option(bool tipWanted) {
    ByteWriter out;
    out.Int16(tipWanted ? 0 : -1);
    return out.Take();
}

struct HeaderRead {
    bool known;  // the ten characters are there
    int number;
};

HeaderRead ReadHeader(ByteReader& in) {
    const bool known = in.Bytes(FileMagic.size()) == FileMagic;
    return {known, in.Int16()};
}

// --- the directory of the settings

bool HoldsAll(const std::string& directory) {
    for (const char* file : {DefaultDirFile, RecentFilesFile, FontSizeFile, OptionFile}) {
        if (!InputFile(directory + "/" + file).Good()) return false;
    }
    return true;
}

// Medium, no recent files, no default directory, tips wanted.
void Deliver(const std::string& directory) {
    std::error_code error;
    fs::create_directories(directory, error);
    WriteOver(directory + "/" + DefaultDirFile, WithString(Header(0), ""));
    WriteOver(directory + "/" + RecentFilesFile, Header(0));
    WriteOver(directory + "/" + FontSizeFile, Header(12));
    WriteOver(directory + "/" + OptionFile, Option(true));
}

// --- text size

void CheckTextSize() {
    Proof.optSmallText.Checked = StmtFontSize == 10;
    Proof.optMediumText.Checked = StmtFontSize == 12;
    Proof.optLargeText.Checked = !Proof.optSmallText.Checked && !Proof.optMediumText.Checked;
}

void SetTextSize(int size) {
    StmtFontSize = size;
    RuleFontSize = size - 2;
    CheckTextSize();
}

// Nothing if the file can't be read to its end.
std::optional<int> StoredTextSize() {
    const std::optional<std::string> bytes = MeantBytes(PathOf(FontSizeFile));
    if (!bytes) return std::nullopt;
    ByteReader in(*bytes);
    const HeaderRead header = ReadHeader(in);
    if (!in.Good()) return std::nullopt;
    return header.known ? header.number : 12;
}

// --- recent files

using Names = std::vector<std::string>;

// No names from a header that is none, or says none. Nothing if the file can't be read to its end.
std::optional<Names> StoredRecentFiles() {
    const std::optional<std::string> bytes = MeantBytes(PathOf(RecentFilesFile));
    if (!bytes) return std::nullopt;
    ByteReader in(*bytes);
    const HeaderRead header = ReadHeader(in);
    if (!in.Good()) return std::nullopt;
    Names names;
    if (!header.known || header.number < 1 || header.number > static_cast<int>(MaxRecent)) {
        return names;
    }
    for (int i = 0; i < header.number; ++i) names.push_back(ToUtf8(in.String()));
    if (!in.Good()) return std::nullopt;
    return names;
}

// Entries beyond the names are left as they are.
void FillRecentMenu(const Names& names) {
    const std::array items = {&Proof.optFile1, &Proof.optFile2, &Proof.optFile3, &Proof.optFile4,
                              &Proof.optFile5};
    if (!names.empty()) Proof.bar6.Visible = true;
    for (std::size_t i = 0; i < names.size(); ++i) {
        items[i]->Caption = names[i];
        items[i]->Literal = true;
        items[i]->Visible = true;
    }
}

void PutAtHead(Names& names, const std::string& name) {
    const auto place = std::find(names.begin(), names.end(), name);
    if (place != names.end()) names.erase(place);
    names.insert(names.begin(), name);
    if (names.size() > MaxRecent) names.resize(MaxRecent);
}

// --- default directory and options

bool LoadDefaultDir() {
    const std::optional<std::string> bytes = MeantBytes(PathOf(DefaultDirFile));
    if (!bytes) return false;
    ByteReader in(*bytes);
    const bool known = ReadHeader(in).known;
    if (!in.Good()) return false;
    if (!known) return true;
    std::string directory = in.String();
    if (!in.Good()) return false;
    DefaultDir = ToUtf8(std::move(directory));
    return true;
}

bool LoadTipWish() {
    const std::optional<std::string> bytes = MeantBytes(PathOf(OptionFile));
    if (!bytes) return false;
    ByteReader in(*bytes);
    const int option = in.Int16();
    if (!in.Good()) return false;
    Proof.optShowTip.Checked = option == 0;
    return true;
}

void LoadDirectoryAndTipWish() {
    const bool hasDirectory = LoadDefaultDir();
    const bool hasOption = LoadTipWish();
    if (hasDirectory && hasOption) return;
    Beep("\"" + PathOf(hasDirectory ? OptionFile : DefaultDirFile) +
         "\" is missing or damaged. The program goes on without what stood in it.");
    SetPrompt("WARNING: Unable to get Recent Files or Default Directory");
}

}  // namespace

std::string FindAppPath(const std::string& programDir) {
    if (!programDir.empty() && HoldsAll(programDir)) return programDir;
    const std::string config = UserDirectory("XDG_CONFIG_HOME", "/.config");
    if (config.empty()) return "";
    std::error_code error;
    std::string own = config + "/tessaryn";
    if (!fs::exists(own, error) || fs::is_empty(own, error)) Deliver(own);
    return own;
}

void LoadSettings(const EventHandler& then) {
    if (AppPath.empty()) return then();
    RemoveLeftoversBeside(PathOf(OptionFile));
    GetFontSize([then] {
        LoadRecentMenu([then] {
            LoadDirectoryAndTipWish();
            then();
        });
    });
}

void GetFontSize(const EventHandler& then) {
    if (const std::optional<int> size = StoredTextSize()) {
        SetTextSize(*size);
        return then();
    }
    Warn("Unable to find Font Size Files",
         "The text is of medium size until you choose another in the menu View.", then);
}

void SaveFontSize() {
    const std::string fault = WriteSetting(FontSizeFile, Header(StmtFontSize));
    if (fault.empty()) return;
    Beep(fault);
    MsgBox({"Unable to save user font file", "WARNING"});
}

template <int size>
void ChooseTextSize() {
    SetTextSize(size);
    if (Proof.RTB.TextLength() > 0) {
        const int caret = Proof.RTB.SelStart;
        ResetFonts();
        Proof.RTB.SelStart = caret;
    }
    SaveFontSize();
}

template void ChooseTextSize<10>();
template void ChooseTextSize<12>();
template void ChooseTextSize<14>();

void StepTextSize(bool larger) {
    constexpr std::pair<int, void (*)()> sizes[] = {
        {10, ChooseTextSize<10>}, {12, ChooseTextSize<12>}, {14, ChooseTextSize<14>}};
    void (*next)() = nullptr;
    for (const auto& [size, choose] : sizes) {
        if (larger && size > StmtFontSize && next == nullptr) next = choose;
        if (!larger && size < StmtFontSize) next = choose;
    }
    if (next != nullptr) next();
}

void LoadRecentMenu(const EventHandler& then) {
    if (const std::optional<Names> names = StoredRecentFiles()) {
        FillRecentMenu(*names);
        return then();
    }
    Warn("Unable to find Recent Files",
         "The menu File lists proofs again once you have opened or saved one.", then);
}

void UpdateRecentFiles() {
    if (AppPath.empty()) return;
    Names names = StoredRecentFiles().value_or(Names{});
    PutAtHead(names, ProofFileName);
    std::string content = Header(static_cast<int>(names.size()));
    for (const std::string& name : names) content = WithString(content, name);
    const std::string fault = WriteSetting(RecentFilesFile, std::move(content));
    if (fault.empty()) {
        FillRecentMenu(names);
    } else {
        Beep(fault);
        MsgBox({"Unable to save recent file name", "WARNING"});
    }
}

template <int place>
void OpenRecentFile() {
    static constexpr std::array items = {&ProofForm::optFile1, &ProofForm::optFile2,
                                         &ProofForm::optFile3, &ProofForm::optFile4,
                                         &ProofForm::optFile5};
    OpenProof((Proof.*items[place - 1]).Caption);
}

template void OpenRecentFile<1>();
template void OpenRecentFile<2>();
template void OpenRecentFile<3>();
template void OpenRecentFile<4>();
template void OpenRecentFile<5>();

std::string SaveDefaultDir(const std::string& directory) {
    std::string fault = WriteSetting(DefaultDirFile, WithString(Header(0), directory));
    if (fault.empty()) DefaultDir = directory;
    return fault;
}

bool TipWanted() {
    return !AppPath.empty() && Proof.optShowTip.Checked;
}

std::string SaveTipWish(bool wanted) {
    Proof.optShowTip.Checked = wanted;
    return WriteSetting(OptionFile, Option(wanted));
}

void ToggleShowTip() {
    const std::string fault = SaveTipWish(!Proof.optShowTip.Checked);
    if (fault.empty()) return;
    Beep(fault);
    RuleMode = 0;
    SetPrompt("Unable to process request");
}

}  // namespace tessaryn
