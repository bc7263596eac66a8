#include "editing/ToggleConclusion.h"

#include <string>

#include "document/ActiveLines.h"
#include "editing/Comment.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/ShowHide.h"

namespace tessaryn {
namespace {

// First place of the line with the number, 1-based in the display; the statement must be visible.
int NumberZoneStart(const Statement& stmt) {
    return NumberStart(stmt) - Depth(stmt) - ViewOffset(stmt);
}

bool InNumberZone(const Statement& stmt, int place) {
    return NumberZoneStart(stmt) <= place && place < stmt.StartStmt - ViewOffset(stmt);
}

bool InAnnotation(const Statement& stmt, int place) {
    return stmt.StartRule - ViewOffset(stmt) <= place && place <= ViewerEndRule(stmt);
}

// In place: no text changes, so the display need not be built anew. The display goes first: a block
// that was not in sight yet gets its formats only now, from the record as it was shown.
void ToggleHighlight(int line) {
    Statement& stmt = EditAt(line);
    Proof.RTB.SelStart = NumberStart(stmt) - ViewOffset(stmt) - 1;
    Proof.RTB.SelLength = stmt.StartStmt - 1 - NumberStart(stmt);
    Proof.RTB.SelBold = !stmt.Highlight;
    stmt.Highlight = !stmt.Highlight;
    Proof.RTB.SelStart = NumberZoneStart(stmt) - 1;
}

void ToggleBlock(int conclusion) {
    const int premise = At(conclusion).Arg1;
    if (At(premise).Visible) {
        HideLines(premise, conclusion - 1);
    } else {
        SetVisible(premise, true);
        ShowActiveLines(premise + 1, conclusion - 1);  // inner blocks stay folded
    }
    for (int line = 1; line <= StmtCount; ++line) {
        if (!At(line).Visible && At(line).ViewerStartLine != 0) EditAt(line).ViewerStartLine = 0;
    }
    RelayoutViewer();
    ResetFonts();
    Proof.RTB.SelStart = Proof.RTB.TextLength();
    if (At(premise).Visible) {
        Proof.RTB.SelStart = At(premise).ViewerStartLine - 1;
    } else {
        Proof.RTB.SelStart = 0;
        Proof.RTB.SelStart = ViewerEndRule(At(conclusion));
    }
}

// The nearest shown highlight ahead of a statement, closed blocks passed over; 0 if there is none.
int HighlightAhead(int line) {
    int ahead = LineAhead(line);
    while (ahead > 0 && !(At(ahead).Visible && At(ahead).Highlight)) {
        ahead = LineAhead(ahead);
    }
    return ahead;
}

bool AnyShown(int first, int last) {
    for (int line = first; line <= last; ++line) {
        if (At(line).Visible) return true;
    }
    return false;
}

// Folds or unfolds what lies between a highlighted statement and the highlight ahead of it.
void ToggleDetails(int line) {
    const int ahead = HighlightAhead(line);
    const std::string name = std::to_string(line);
    if (ahead + 1 == line)
        return Beep("No lines lie between line " + name + " and the highlight ahead of it.");
    if (AnyShown(ahead + 1, line - 1)) {
        HideLines(ahead + 1, line - 1);
    } else if (ShowActiveLines(ahead + 1, line - 1) == 0) {
        return Beep("Ahead of line " + name +
                    " lies only its block: click its annotation to unfold it.");
    }
    RelayoutViewer();
    ResetFonts();
    Proof.DoubleClickCaret = At(ahead > 0 ? ahead : line).ViewerStartLine - 1;
}

}  // namespace

int NumberAt(int place) {
    const int line = ShownStmtAt(place);
    return line > 0 && InNumberZone(At(line), place) ? line : 0;
}

void ToggleConclusion() {
    SetPrompt("");
    const int place = Proof.RTB.SelStart + 1;
    if (place < FirstViewerStartLine()) return EditIntroduction();
    const int line = ShownStmtAt(place);
    if (line == 0) return Beep("Nothing lies under the click.");
    if (InNumberZone(At(line), place)) {
        if (At(line).Rule == 1) return;  // a Premise stays highlighted
        ToggleHighlight(line);
        ToggledNumber = line;
    } else if (IsConclusion(At(line)) && InAnnotation(At(line), place)) {
        ToggleBlock(line);
    } else {
        EditComment(line);
    }
}

void ToggleDetailBlock() {
    Proof.DoubleClickPending = true;
    Proof.DoubleClickCaret = Proof.RTB.SelStart;
    const int line = NumberAt(Proof.RTB.SelStart + 1);
    if (line > 0 && line == ClickedNumber) {
        if (line == ToggledNumber) ToggleHighlight(line);
        if (!At(line).Highlight) {
            Beep("Line " + std::to_string(line) +
                 " is not highlighted: click its number once to highlight it.");
        } else if (line < 2) {
            Beep("No lines lie ahead of line 1.");
        } else {
            ToggleDetails(line);
        }
    }
    ClickedNumber = ToggledNumber = 0;
    Proof.RTB.SelLength = 0;
}

}  // namespace tessaryn
