#include "output/SaveChanges.h"

#include <utility>

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "output/ProofCommands.h"
#include "output/Recovery.h"
#include "output/SavingOver.h"
#include "output/Settings.h"

namespace tessaryn {

SaveChangesForm::SaveChangesForm() : Form("SaveChanges", "Save changes to current proof?") {
    cmdYes.Click = [this] { RunHandler([this] { Yes(); }); };
    cmdNo.Click = [this] { RunHandler([this] { No(); }); };
    cmdCancel.Click = [this] { Close(); };
    DefaultButton = &cmdYes;
}

void SaveChangesForm::Activated() {
    Beep("The proof has changes that are in no file yet.");
    FileName.Caption = ProofFileName.empty() ? "(Untitled file)" : ProofFileName;
    cmdYes.SetFocus();
}

void SaveChangesForm::Close() {
    OperationCancelled = true;
    Hide();
}

void SaveChangesForm::No() {
    KeepDiscarded();
    GoOn();
}

void SaveChangesForm::Yes() {
    if (ProofFileName.empty()) {
        // Without a name it is not saved, and what was asked for goes on.
        AskWhereToSave({"", ProofFilter, DefaultDir, true, false},
                       [this](const ChosenFile& path) { path ? SaveAs(*path) : No(); });
        return;
    }
    const std::string name = WithProofExtension(ProofFileName);
    ReplaceIfWanted(
        name, [this, name] { SaveAs(name); }, [this] { Hide(); });
}

// Where it can't be saved, nothing that would lose the proof goes on.
void SaveChangesForm::SaveAs(const std::string& name) {
    RefreshNow(Proof);
    SaveProofFile(name, [this](bool saved) { saved ? GoOn() : Hide(); });
}

// Opens the file, if one is to be opened. The form stays until it is known which.
void SaveChangesForm::GoOn() {
    if (!OpenFollows) return Hide();
    if (std::exchange(RecentPicked, false)) return OpenProofFile(RecentName);
    AskWhatToOpen({"", ProofFilter, DefaultDir, false, true}, [this](const ChosenFile& path) {
        if (path) return OpenProofFile(*path);
        ProofFileName.clear();
        Hide();
    });
}

void SaveChangesForm::OpenProofFile(const std::string& path) {
    RefreshNow(Proof);
    ReadProofFile(path);
    Hide();
}

}  // namespace tessaryn
