#include "output/SaveChanges.h"

#include <utility>

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/ProofCommands.h"
#include "output/SavingOver.h"
#include "output/Settings.h"

namespace tessaryn {

SaveChangesForm::SaveChangesForm() : Form("SaveChanges", "Save changes to current proof?") {
    cmdYes.Click = [this] { Yes(); };
    cmdNo.Click = [this] { No(); };
    cmdCancel.Click = [this] { Close(); };
    DefaultButton = &cmdYes;
}

void SaveChangesForm::Activated() {
    Beep("The proof has changes that are in no file yet.");
    OperationCancelled = false;
    FileName.Caption = ProofFileName.empty() ? "(Untitled file)" : ProofFileName;
    cmdYes.SetFocus();
}

void SaveChangesForm::Close() {
    OperationCancelled = true;
    Hide();
}

void SaveChangesForm::No() {
    if (OpenFollows) OpenProofFile();
    Hide();
}

void SaveChangesForm::Yes() {
    const std::string previousName = ProofFileName;
    bool save = true;
    if (!ProofFileName.empty()) {
        const std::string name = WithProofExtension(ProofFileName);
        if (!MayReplace(name)) return Hide();
        ProofFileName = name;
    } else {
        CommonDialog1 = {"", ProofFilter, DefaultDir, true, false};
        save = ShowSave(CommonDialog1);
        if (save) ProofFileName = CommonDialog1.FileName;
    }
    if (save) {
        RefreshNow(Proof);
        if (!SaveProofFile()) {
            // Nothing that would lose the proof goes on.
            ProofFileName = previousName;
            return Hide();
        }
    }
    if (OpenFollows) OpenProofFile();
    Hide();
}

void SaveChangesForm::OpenProofFile() {
    if (!RecentPicked) {
        CommonDialog1 = {"", ProofFilter, DefaultDir, false, true};
        if (!ShowOpen(CommonDialog1)) return ProofFileName.clear();
    }
    RefreshNow(Proof);
    ReadProofFile(std::exchange(RecentPicked, false) ? RecentName : CommonDialog1.FileName);
}

}  // namespace tessaryn
