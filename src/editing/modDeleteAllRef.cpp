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

void DeleteMarked(int first) {
    BackUpUndo();
    DeleteStmts(first);
    FinishDeletion();
}

void ForgetMarks() {
    OperationCancelled = false;
    ClearMarks();
}

}  // namespace

void DeleteAllRef() {
    RuleMode = 0;
    const int first = StmtToDelete();
    SetPrompt("");
    if (first == 0) return;
    int count = 0;
    FlagStmts(first, count);
    if (count == 1) return DeleteMarked(first);
    Warn("This deletition will result in  " + std::to_string(count - 1) +
             " other statement(s) being deleted.",
         "Continue deletes them all, Cancel leaves the proof as it is.",
         [first] { OperationCancelled ? ForgetMarks() : DeleteMarked(first); });
}

}  // namespace tessaryn
