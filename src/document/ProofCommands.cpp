// Open, Save and Save As: the proof file and the window around it.
#include <utility>

#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/SaveChanges.h"
#include "output/Settings.h"
#include "platform/Files.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

bool WriteFileWithHourglass() {
    const std::string prompt = Proof.StatusLine.GetText();
    SetPrompt("Please wait...");
    Proof.MousePointer = Pointer::Hourglass;
    RefreshNow(Proof);
    const bool saved = ReplaceFile(ProofFileName, WriteProof());
    Proof.MousePointer = Pointer::Default;
    SetPrompt(prompt);
    return saved;
}

// Closed blocks are folded away on opening, with what is nested in them; all else shows.
void FoldClosedBlocks() {
    int line = 1;
    while (line <= StmtCount) {
        if (!IsClosedPremise(At(line))) {
            EditAt(line).Visible = true;
            ++line;
            continue;
        }
        for (const int end = At(line).Arg1; line < end; ++line) {
            EditAt(line).Visible = false;
            EditAt(line).ViewerStartLine = 0;
        }
    }
}

void TakeOver(StoredProof proof) {
    ProofCaption = std::move(proof.caption);
    StmtTable.Clear();
    for (std::size_t line = 1; line < proof.table.size(); ++line) {
        StmtTable.Append(std::move(proof.table[line]));
    }
    StmtCount = StmtTable.Count();
    ProofText = std::move(proof.text);
    if (StmtCount == 0) {
        IntroEnd = static_cast<int>(ProofText.size()) - 4;
    } else {
        IntroEnd = StmtTable[1].StartLine < 2 ? 0 : StmtTable[1].StartLine - 5;
    }
    FoldClosedBlocks();
    RelayoutViewer();
}

}  // namespace

std::string ProofTitle() {
    if (ProofFileName.empty()) {
        if (ProofCaption.empty()) return " Tessaryn 2.0  -  (Untitled)";
        return " " + ProofCaption + " - (Untitled)";
    }
    if (ProofCaption.empty()) return " Tessaryn 2.0  -  " + ProofFileName;
    return " " + ProofCaption + "  -  " + ProofFileName;
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
    if (WriteFileWithHourglass()) return true;
    OperationCancelled = true;
    MsgBox("Unable to save file", "WARNING");
    return false;
}

bool SaveProofFile() {
    if (!SaveProof()) return false;
    Proof.CommonDialog1.FileName = ProofFileName;
    UpdateRecentFiles();
    ProofChanged = false;
    Proof.Caption = ProofTitle();
    return true;
}

void ReadProofFile(const std::string& previousName) {
    SetUndoRedo(false, false);
    RuleMode = 0;
    if (InsertMode) EndInsertMode();
    const std::optional<std::string> bytes = ReadWholeFile(ProofFileName);
    std::optional<StoredProof> proof = bytes ? ReadProof(*bytes) : std::nullopt;
    if (!proof) {
        OperationCancelled = true;
        Beep(bytes ? "\"" + ProofFileName + "\" is no proof file, or a damaged one."
                   : "\"" + ProofFileName + "\" can't be opened for reading.");
        SetPrompt("Open: Unable to open proof file");
        ProofFileName = previousName;
        return;
    }
    TakeOver(std::move(*proof));
    Proof.Caption = ProofTitle();
    CheckStoredText();
    ResetFonts();
    Proof.CommonDialog1.FileName = ProofFileName;
    UpdateRecentFiles();
    ProofChanged = false;
}

void OpenCommand() {
    Proof.RTB.SetFocus();
    RuleMode = 0;
    SetPrompt("");
    if (ProofChanged) {
        OpenFollows = true;
        ShowModal(SaveChanges);
    } else {
        const std::string previousName = ProofFileName;
        if (RecentPicked) {
            ProofFileName = RecentName;
        } else {
            CommonDialog choice{"", ProofFilter, DefaultDir, false, true};
            if (!ShowOpen(choice)) return;
            ProofFileName = choice.FileName;
        }
        RefreshNow(Proof);
        ReadProofFile(previousName);
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
