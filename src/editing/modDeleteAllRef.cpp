// Delete ALL References: removes the clicked statement and all that depends on it, with a question
// if there is more than the one.
#include <string>

#include "document/Document.h"
#include "editing/Delete.h"
#include "entry/Warning.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

// False if the user cancels.
bool ConfirmOthers(int others) {
    Warning.Message.Caption = "This deletition will result in  " + std::to_string(others) +
                              " other statement(s) being deleted.";
    Warning.Reason = "Continue deletes them all, Cancel leaves the proof as it is.";
    ShowModal(Warning);
    return !OperationCancelled;
}

void ForgetMarks() {
    OperationCancelled = false;
    ClearMarks();
}

}  // namespace

void DeleteAllRef() {
    RuleMode = 0;
    int first = StmtToDelete();
    SetPrompt("");
    if (first == 0) return;
    int count = 0;
    FlagStmts(first, count);
    if (count > 1 && !ConfirmOthers(count - 1)) return ForgetMarks();
    BackUpUndo();
    DeleteStmts(first);
    FinishDeletion();
}

}  // namespace tessaryn
