// The snapshots, and what Undo and Redo do with insert mode and the caret.
#include "view/Undo.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

struct Snapshot {
    StatementTable table;
    SharedText text;
    int insertLine = 0;
};

Snapshot UndoState;  // as of the last BackUpUndo
Snapshot RedoState;  // as it was when Undo last ran

// IntroEnd is no part of a snapshot.
int DeriveIntroEnd() {
    if (StmtCount == 0) return std::max(0, static_cast<int>(ProofText.size()) - 4);
    return StmtTable[1].StartLine == 1 ? 0 : StmtTable[1].StartLine - 5;
}

void Restore(const Snapshot& snapshot) {
    StmtTable = snapshot.table;
    StmtCount = StmtTable.Count();
    ProofText = snapshot.text;
    IntroEnd = DeriveIntroEnd();
}

void SettleInsertMode(int savedLine) {
    if (InsertLine <= 0) return;
    if (savedLine < 1) {
        EndInsertMode();
        Beep("The restored proof has no insert line.");
        MsgBox({"Insert Mode switched OFF", "WARNING"});
    } else if (savedLine != InsertLine) {
        InsertLine = savedLine;
        Proof.InsertLineLabel.Caption = "^ " + std::to_string(InsertLine);
    }
}

void PlaceCaret() {
    if (InsertLine < 1) {
        Proof.RTB.SelStart = Proof.RTB.TextLength();
    } else {
        PutCaretBehindInsertMark();
    }
}

void Begin(bool canUndo) {
    Proof.RTB.SetFocus();
    RuleMode = 0;
    ProofChanged = true;  // a saved document need not be the one that comes back
    SetUndoRedo(canUndo, !canUndo);
    SetPrompt("");
}

void Finish(int savedLine) {
    ResetFonts();
    SettleInsertMode(savedLine);
    PlaceCaret();
}

}  // namespace

void SetUndoRedo(bool canUndo, bool canRedo) {
    Proof.optUndo.Enabled = Proof.cmdUndo.Enabled = canUndo;
    Proof.optRedo.Enabled = Proof.cmdRedo.Enabled = canRedo;
}

void BackUpUndo() {
    ProofChanged = true;
    if (StmtCount < 1) return;
    UndoState.table = StmtTable;
    UndoState.text = ProofText;
    UndoState.insertLine = InsertLine;
    SetUndoRedo(true, false);
}

void Undo() {
    Begin(false);
    RedoState = {std::move(StmtTable), std::move(ProofText), InsertLine};
    Restore(UndoState);
    // The delete commands take their snapshot when the marks have been set.
    for (int line = 1; line <= StmtCount; ++line) {
        if (At(line).Flagged) EditAt(line).Flagged = false;
    }
    Finish(UndoState.insertLine);
}

void Redo() {
    Begin(true);
    Restore(RedoState);
    Finish(RedoState.insertLine);
}

void ResetUndo() {
    UndoState = {};
    RedoState = {};
    ProofChanged = false;
}

}  // namespace tessaryn
