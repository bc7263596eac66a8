#include "output/ProofCommands.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <new>
#include <system_error>
#include <utility>

#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/SaveChanges.h"
#include "output/SavingOver.h"
#include "output/Settings.h"
#include "platform/Files.h"
#include "platform/InputFile.h"
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

// Makes the stored document the open one, in the display as well. If that fails, what was open is
// open again.
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

// A name without ending is that of a file with the ending of proofs where it is of no other.
std::string NameOfProof(const std::string& entered) {
    const std::string ended = entered + ".proof";
    std::error_code error;
    const bool itself =
        WithProofExtension(entered) != ended || std::filesystem::is_regular_file(entered, error);
    return itself || !std::filesystem::is_regular_file(ended, error) ? entered : ended;
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
    return "";
}

}  // namespace

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
    const std::string bytes = WriteProof();
    const std::string fault = bytes.size() <= MaxProofFile ? ReplaceFile(ProofFileName, bytes)
                                                           : "The proof is too long for a file.";
    Proof.MousePointer = Pointer::Default;
    SetPrompt(prompt);
    if (fault.empty()) {
        SeenProofFile = AsWritten(ProofFileName, bytes);
        return true;
    }
    OperationCancelled = true;
    Beep(fault);
    MsgBox("Unable to save file", "WARNING");
    return false;
}

bool SaveProofFile() {
    if (!MaySave() || !SaveProof()) return false;
    Proof.CommonDialog1.FileName = ProofFileName;
    UpdateRecentFiles();
    ProofChanged = false;
    Proof.Caption = ProofTitle();
    return true;
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
    SetPrompt("Open: Unable to open proof file");
}

void NewCommand() {
    Proof.RTB.SetFocus();
    if (ProofChanged) {
        OpenFollows = false;
        ShowModal(SaveChanges);
        if (OperationCancelled) return;
    }
    ProofFileName.clear();
    Proof.CommonDialog1.FileName.clear();
    ClearDocument();
    EndInsertMode();
    SetPrompt("");
    SetUndoRedo(false, false);
    ProofChanged = false;
    CheckStoredText();
    ResetFonts();
    Proof.RTB.SelStart = 0;
    Proof.Caption = " Tessaryn 2.0 - (Untitled)";
}

void ExitCommand() {
    try {
        Proof.RTB.SetFocus();
        OperationCancelled = false;
        if (ProofChanged) {
            OpenFollows = false;
            ShowModal(SaveChanges);
            if (OperationCancelled) return;
        }
        EndProgram();
    } catch (const std::exception&) {
        MsgBox("Unable to save file", "WARNING");
    }
}

void OpenCommand() {
    Proof.RTB.SetFocus();
    RuleMode = 0;
    SetPrompt("");
    if (ProofChanged) {
        OpenFollows = true;
        ShowModal(SaveChanges);
    } else {
        CommonDialog choice{"", ProofFilter, DefaultDir, false, true};
        if (!RecentPicked && !ShowOpen(choice)) return;
        RefreshNow(Proof);
        ReadProofFile(RecentPicked ? RecentName : choice.FileName);
    }
    Proof.RTB.SelStart = 0;
}

void SaveAsCommand() {
    Proof.RTB.SetFocus();
    if (RuleMode != 0) SetPrompt("");  // what it asks for is not waited for any more
    RuleMode = 0;
    CommonDialog& dialog = Proof.CommonDialog1;
    if (!dialog.FileName.empty()) dialog.FileName = WithProofExtension(dialog.FileName);
    CommonDialog choice{dialog.FileName, ProofFilter, DefaultDir, true, false};
    if (!ShowSave(choice)) return;
    RefreshNow(Proof);
    dialog.FileName = choice.FileName;
    const std::string previousName = std::exchange(ProofFileName, choice.FileName);
    if (!SaveProofFile()) ProofFileName = previousName;
}

void SaveCommand() {
    Proof.RTB.SetFocus();
    if (ProofFileName.empty()) {
        SaveAsCommand();
    } else {
        SaveProofFile();
    }
}

}  // namespace tessaryn
