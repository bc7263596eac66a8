#include "mainwindow/Commands.h"

#include <exception>

#include "document/Document.h"
#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/SaveChanges.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/TextExchange.h"
#include "view/Undo.h"

namespace tessaryn {

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

void ShowManual() {
    if (!ShowHelpFile(AppPath + "\\Tessaryn.chm")) {
        MsgBox("Help file \"Tessaryn.chm\" not found", "SYSTEM ERROR");
    }
}

void HelpCommand() {
    SetPrompt("");
    ShowManual();
}

void WebSiteCommand() {
    OpenWebSite(WebSite);
}

void CopySelection() {
    Copy(Proof.RTB);
}

void ToggleRichTextMode() {
    Proof.optRichTextMode.Checked = !Proof.optRichTextMode.Checked;
}

}  // namespace tessaryn
