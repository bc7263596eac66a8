// Delete Subsequent Lines: cuts the proof off at the clicked statement, without a question.
#include "document/Document.h"
#include "editing/Delete.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/Undo.h"

namespace tessaryn {

int StmtToDelete() {
    const int line = ShownStmtAt(Proof.RTB.SelStart + 1);
    if (line == 0) Beep("Nothing lies under the click: click the line to delete.");
    return line;
}

void FinishDeletion() {
    RuleMode = 0;
    Proof.optInsert.Checked = false;
}

void DeleteAllSub() {
    int first = StmtToDelete();
    if (first == 0) return;
    SetPrompt("");
    ClearMarks();
    for (int line = first; line <= StmtCount; ++line) {
        EditAt(line).Flagged = true;
    }
    BackUpUndo();
    DeleteStmts(first);
    FinishDeletion();
}

}  // namespace tessaryn
