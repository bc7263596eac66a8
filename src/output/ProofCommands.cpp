#include "output/ProofCommands.h"

#include <algorithm>
#include <filesystem>
#include <new>
#include <system_error>
#include <utility>

#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "output/Recovery.h"
#include "output/SaveChanges.h"
#include "output/SavingOver.h"
#include "output/Settings.h"
#include "platform/Files.h"
#include "platform/InputFile.h"
#include "platform/Platform.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

// Closed blocks are folded away on opening, with what is nested in them; all else shows.
void FoldClosedBlocks() {
    for (int line = 1; line <= StmtCount; ++line) {
        for (const int end = IsClosedPremise(At(line)) ? At(line).Arg1 : line; line < end; ++line) {
            SetVisible(line, false);
            EditAt(line).ViewerStartLine = 0;
        }
        SetVisible(line, true);
    }
}

// A name without ending is that of a file with the ending of proofs where it is of no other.
std::string NameOfProof(const std::string& entered) {
    const std::string ended = entered + ".proof";
    std::error_code error;
    const bool itself =
        WithProofExtension(entered) != ended || std::filesystem::is_regular_file(entered, error);
    return itself || !std::filesystem::is_regular_file(ended, error) ? entered : ended;
}

// Why the proof can't be saved; "" if the file now holds it.
std::string WrittenOr(const std::string& fileName) {
    try {
        const std::string bytes = WriteProof();
        if (bytes.size() > MaxProofFile) return "The proof is too long for a file.";
        std::string fault = ReplaceFile(fileName, bytes);
        if (fault.empty()) SeenProofFile = AsWritten(fileName, bytes);
        return fault;
    } catch (const std::bad_alloc&) {
        return "That needs more memory than there is.";
    }
}

// Why a file can't be opened, behind its name; "" if it now is the open proof.
std::string OpenedOr(const std::string& fileName) {
    InputFile file(fileName);
    if (!file.Good()) return " can't be opened for reading.";
    ByteReader in([&file](char* to, std::size_t count) { return file.Read(to, count); },
                  std::min(file.Size(), MaxProofFile));
    std::optional<Document> proof = ReadProof(in);
    if (!proof) return " is no proof file, or a damaged one.";
    std::string name = fileName;
    std::string dialogName = fileName;
    std::string title = TitleOf(proof->ProofCaption, fileName);
    SeenFile seen{fileName, file.Size(), file.Print()};
    TakeOver(*proof);
    std::swap(SeenProofFile, seen);
    ProofFileName.swap(name);
    Proof.CommonDialog1.FileName.swap(dialogName);
    Proof.Caption.swap(title);
    ProofChanged = false;
    DropCopy();
    ProofOpened();
    return "";
}

}  // namespace

void TakeOver(Document& proof) {
    std::swap(Doc, proof);
    try {
        FoldClosedBlocks();
        RelayoutViewer();
        CheckStoredText();
        ResetFonts();
    } catch (...) {
        std::swap(Doc, proof);
        proof = {};
        CheckStoredText();
        ResetFonts();
        throw;
    }
}

std::string WithExtension(const std::string& name, const std::string& extension) {
    const std::size_t dot = name.rfind('.');
    const std::size_t slash = name.rfind('/');
    const bool hasDot = dot != std::string::npos && (slash == std::string::npos || dot > slash);
    return (hasDot ? name.substr(0, dot + 1) : name + ".") + extension;
}

std::string WithProofExtension(const std::string& name) {
    return WithExtension(name, "proof");
}

bool SaveProof() {
    const std::string prompt = Proof.StatusLine.GetText();
    SetPrompt("Please wait...");
    Proof.MousePointer = Pointer::Hourglass;
    RefreshNow(Proof);
    const std::string fault = WrittenOr(ProofFileName);
    Proof.MousePointer = Pointer::Default;
    SetPrompt(prompt);
    if (fault.empty()) return true;
    OperationCancelled = true;
    Beep(fault);
    MsgBox({"Unable to save file", "WARNING"});
    return false;
}

void SaveProofFile(std::string name, std::function<void(bool)> then) {
    const std::string previousName = std::exchange(ProofFileName, std::move(name));
    const auto end = [previousName, then = std::move(then)](bool saved) {
        if (!saved) ProofFileName = previousName;
        then(saved);
    };
    const auto save = [end] {
        if (!SaveProof()) return end(false);
        Proof.CommonDialog1.FileName = ProofFileName;
        UpdateRecentFiles();
        ProofChanged = false;
        DropCopy();
        Proof.Caption = ProofTitle();
        end(true);
    };
    SaveUnlessChanged(save, [end] { end(false); });
}

void ReadProofFile(const std::string& entered) {
    SetUndoRedo(false, false);
    RuleMode = 0;
    if (InsertMode) EndInsertMode();
    const std::string fileName = NameOfProof(entered);
    std::string reason;
    try {
        reason = OpenedOr(fileName);
    } catch (const std::bad_alloc&) {
        reason = " needs more memory than there is.";
    }
    if (reason.empty()) {
        RemoveLeftoversBeside(ProofFileName);
        return UpdateRecentFiles();
    }
    OperationCancelled = true;
    Beep("\"" + fileName + "\"" + reason);
    SetPrompt(OpenFailed);
}

namespace {

// Goes on once the user has been asked about unsaved changes, if there are any and the user did not
// cancel.
void OfferToSave(const EventHandler& goOn) {
    if (!ProofChanged) return goOn();
    OpenFollows = false;
    AskIn(SaveChanges, [goOn] {
        if (!OperationCancelled) goOn();
    });
}

void EmptyProof() {
    ProofFileName.clear();
    Proof.CommonDialog1.FileName.clear();
    ClearDocument();
    EndInsertMode();
    SetPrompt("");
    SetUndoRedo(false, false);
    ProofChanged = false;
    DropCopy();
    CheckStoredText();
    ResetFonts();
    Proof.RTB.SelStart = 0;
    Proof.Caption = " Tessaryn " TESSARYN_VERSION " - (Untitled)";
}

void OpenNow(const std::string& path) {
    RefreshNow(Proof);
    ReadProofFile(path);
    Proof.RTB.SelStart = 0;
}

}  // namespace

void NewCommand() {
    Proof.RTB.SetFocus();
    OfferToSave(EmptyProof);
}

void ExitCommand() {
    Proof.RTB.SetFocus();
    OperationCancelled = false;
    OfferToSave(EndProgram);
}

void OpenCommand() {
    Proof.RTB.SetFocus();
    RuleMode = 0;
    SetPrompt("");
    if (ProofChanged) {
        OpenFollows = true;
        AskIn(SaveChanges, [] {
            RecentPicked = false;
            Proof.RTB.SelStart = 0;
        });
    } else if (std::exchange(RecentPicked, false)) {
        OpenNow(RecentName);
    } else {
        AskWhatToOpen({"", ProofFilter, DefaultDir, false, true}, [](const ChosenFile& path) {
            if (path) OpenNow(*path);
        });
    }
}

void OpenProof(const std::string& path) {
    RecentName = path;
    RecentPicked = true;
    OpenCommand();
}

void SaveAsCommand() {
    Proof.RTB.SetFocus();
    if (RuleMode != 0) SetPrompt("");  // what it asks for is not waited for any more
    RuleMode = 0;
    std::string& name = Proof.CommonDialog1.FileName;
    if (!name.empty()) name = WithProofExtension(name);
    AskWhereToSave({name, ProofFilter, DefaultDir, true, false}, [](const ChosenFile& path) {
        if (!path) return;
        RefreshNow(Proof);
        Proof.CommonDialog1.FileName = *path;
        SaveProofFile(*path, [](bool) {});
    });
}

void SaveCommand() {
    Proof.RTB.SetFocus();
    if (ProofFileName.empty()) {
        SaveAsCommand();
    } else {
        SaveProofFile(ProofFileName, [](bool) {});
    }
}

}  // namespace tessaryn
