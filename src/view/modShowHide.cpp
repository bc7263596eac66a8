// The commands of the View menu.
#include "view/ShowHide.h"

#include "document/ActiveLines.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

void Redraw() {
    RelayoutViewer();
    ResetFonts();
}

void CaretToEnd() {
    Proof.RTB.SelStart = Proof.RTB.TextLength();
}

// The highest active line that is neither shown nor highlighted; 0 if there is none.
int LastFoldedLine() {
    int line = StmtCount;
    while (line > 0 && (At(line).Visible || At(line).Highlight)) {
        line = LineAhead(line);
    }
    return line;
}

// The nearest shown highlight ahead of a line, an unfolded block's Premise included; 0 if there is
// none.
int ShownHighlightAhead(int line) {
    int ahead = line - 1;
    while (ahead > 0 && !(At(ahead).Visible && At(ahead).Highlight)) {
        ahead = IsConclusion(At(ahead)) ? At(ahead).Arg1 : ahead - 1;
    }
    return ahead;
}

void HideClosedBlocks() {
    for (int line = 1; line <= StmtCount; line = LineBehind(line)) {
        if (IsClosedPremise(At(line))) HideLines(line, At(line).Arg1 - 1);
    }
}

}  // namespace

int ShowActiveLines(int first, int last) {
    const std::vector<int> lines = ActiveLines(first, last + 1);
    for (const int line : lines) SetVisible(line, true);
    return lines.empty() ? 0 : lines.front();
}

void HideLines(int first, int last) {
    for (int line = first; line <= last; ++line) SetVisible(line, false);
}

void HideAllDetails() {
    Proof.RTB.SetFocus();
    HideClosedBlocks();
    for (const int line : ActiveLines(StmtCount)) {
        // A highlighted line stays as it was, shown or not.
        if (!At(line).Highlight) SetVisible(line, false);
    }
    if (InsertMode && InsertLine > 1) SetVisible(InsertLine - 1, true);
    if (StmtCount > 0) SetVisible(StmtCount, true);
    Redraw();
    InsertMode ? PutCaretBehindInsertMark() : CaretToEnd();
}

void ShowAllActive() {
    Proof.RTB.SetFocus();
    HideClosedBlocks();
    ShowActiveLines(1, StmtCount);
    Redraw();
    InsertMode&& InsertLine >= 2 ? PutCaretBehindInsertMark() : CaretToEnd();
}

void ShowLastActive() {
    Proof.RTB.SetFocus();
    const int last = LastFoldedLine();
    if (last == 0) return Beep("No active line is folded away but for highlighted ones.");
    const int highlight = ShownHighlightAhead(last);
    // An unfolded block at the start of the stretch stays as it is.
    const bool ofBlock = highlight > 0 && IsClosedPremise(At(highlight));
    const int firstShown = ShowActiveLines(ofBlock ? At(highlight).Arg1 : highlight + 1, last);
    Redraw();
    CaretToEnd();
    Proof.RTB.SelStart = At(highlight > 0 ? highlight : firstShown).ViewerStartLine - 1;
}

void ShowAllStmts() {
    Proof.RTB.SetFocus();
    for (int line = 1; line <= StmtCount; ++line) SetVisible(line, true);
    Redraw();
    Proof.RTB.SelStart = 0;
    CaretToEnd();
}

void ShowHighlights() {
    Proof.RTB.SetFocus();
    for (int line = 1; line <= StmtCount; ++line) {
        SetVisible(line, At(line).Highlight || IsConclusion(At(line)));
    }
    Redraw();
    CaretToEnd();
}

}  // namespace tessaryn
