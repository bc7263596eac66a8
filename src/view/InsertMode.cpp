#include "view/InsertMode.h"

#include <string>

#include "document/ActiveLines.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"

namespace tessaryn {
namespace {

// The line that a click at a place picks; 0, with the reason for the beep, if it picks none. place:
// 1-based in the display.
int PickInsertLine(int place, std::string& reason) {
    reason =
        "The click is on no line that is in force: click the line that the new one is to precede.";
    for (int i = 1; i <= StmtCount;) {
        const Statement& stmt = At(i);
        const bool hit =
            stmt.Visible && stmt.ViewerStartLine <= place && place <= ViewerEndRule(stmt);
        if (!hit) {
            // Lines of a closed block can't be chosen, not even where its Premise is hidden.
            i = LineBehind(i);
        } else if (!IsConclusion(stmt)) {
            return i;
        } else if (At(i - 1).Visible) {
            reason =
                "Line " + std::to_string(i) +
                " is a Conclusion, which must stay right behind its block: click another line.";
            return 0;
        } else {
            return stmt.Arg1;  // the block is folded away
        }
    }
    return 0;
}

}  // namespace

int InsertionLimit() {
    return InsertMode ? InsertLine : StmtCount + 1;
}

void EndInsertMode() {
    InsertMode = false;
    InsertLine = 0;
    Proof.optInsert.Checked = false;
    Proof.InsertLineLabel.Caption.clear();
}

void ShowInsertLine() {
    Proof.InsertLineLabel.Caption = "^" + std::to_string(InsertLine);
}

void ToggleInsertMode() {
    if (InsertMode) {
        EndInsertMode();
        if (Proof.RTB.SelLength > 0) Proof.RTB.SelLength = 0;
        Proof.RTB.SetFocus();
    } else {
        AwaitClick(Rule::SetInsertMode, SetInsertModePrompt);
    }
}

void GetInsertLineNo() {
    InsertLine = 0;
    std::string reason;
    const int line = PickInsertLine(Proof.RTB.SelStart + 1, reason);
    if (line < 1) return Beep(reason);
    InsertLine = line;
    ShowInsertLine();
    Proof.optInsert.Checked = true;
    SetPrompt("");
    InsertMode = true;
    RuleMode = 0;
}

int InsertMarkPlace() {
    if (!InsertMode) return -1;
    for (int line = InsertLine; line <= StmtCount; ++line) {
        if (At(line).Visible) return At(line).ViewerStartLine - 1;
    }
    return Proof.RTB.TextLength();
}

void PutCaretBehindInsertMark() {
    Proof.RTB.SelStart = 0;
    for (int line = InsertLine - 1; line >= 1; --line) {
        if (!At(line).Visible) continue;
        Proof.RTB.SelStart = ViewerEndRule(At(line));
        return;
    }
}

}  // namespace tessaryn
