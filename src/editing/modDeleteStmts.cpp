// The removal of marked statements: one walk over the records, one new text.
#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/Document.h"
#include "editing/Delete.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/ShowHide.h"

namespace tessaryn {
namespace {

bool IsFallenConclusion(const Statement& stmt) {
    return stmt.Flagged && IsConclusion(stmt);
}

// Shows the lines of a block that is to be open again; inner blocks stay as they are.
void ShowReopened(int premise, int conclusion) {
    SetVisible(premise, true);
    ShowActiveLines(premise + 1, conclusion - 1);
}

// How many levels of indentation each statement loses: one for each block around it that opens.
std::vector<int> LostIndentation(int first) {
    std::vector<int> levels(static_cast<std::size_t>(StmtCount) + 2, 0);
    for (int line = first; line <= StmtCount; ++line) {
        if (!IsFallenConclusion(At(line))) continue;
        ++levels[static_cast<std::size_t>(At(line).Arg1)];
        --levels[static_cast<std::size_t>(line)];
    }
    for (std::size_t line = 1; line < levels.size(); ++line) levels[line] += levels[line - 1];
    return levels;
}

int NumberSurvivors() {
    int count = 0;
    for (int line = 1; line <= StmtCount; ++line) {
        if (!At(line).Flagged) EditAt(line).NewNumber = ++count;
    }
    return count;
}

void RewriteReferences() {
    for (int line = 1; line <= StmtCount; ++line) {
        if (IsFallenConclusion(At(line))) EditAt(At(line).Arg1).Arg1 = 0;
    }
    for (int line = 1; line <= StmtCount; ++line) {
        if (At(line).Flagged) continue;
        Statement& stmt = EditAt(line);
        if (stmt.Arg1 > 0) stmt.Arg1 = At(stmt.Arg1).NewNumber;
        if (stmt.Arg2 > 0) stmt.Arg2 = At(stmt.Arg2).NewNumber;
    }
}

// Appends a stretch of text less up to `levels` TABs at the start of each of its lines; the first
// one counts if the stretch starts a line.
void AppendOutdented(std::string& text, std::string_view stretch, int levels, bool startsLine) {
    if (levels == 0) {
        text += stretch;
        return;
    }
    int toDrop = startsLine ? levels : 0;
    for (const char c : stretch) {
        if (c == '\t' && toDrop > 0) {
            --toDrop;
            continue;
        }
        text += c;
        toDrop = c == '\n' ? levels : 0;
    }
}

// Appends the block of a survivor with its new number, references and indentation, and sets its
// indexes to where it now lies.
void AppendSurvivor(std::string& text, Statement& stmt, int levels) {
    const std::string_view body = ProofSlice(stmt.StartStmt, stmt.EndStmt);
    const auto indent = static_cast<std::size_t>(std::max(0, Depth(stmt) - levels));
    const auto end = [&] { return static_cast<int>(text.size()); };
    const int oldStart = std::exchange(stmt.StartLine, end() + 1);
    if (stmt.EndUserComment > 0) {
        AppendOutdented(text, ProofSlice(oldStart, stmt.EndUserComment), levels, true);
        // Of a damaged file it may have been TABs and nothing else.
        stmt.EndUserComment = end() < stmt.StartLine ? 0 : end();
        if (stmt.EndUserComment > 0) text += "\r\n\r\n";
    }
    text.append(indent, '\t');
    AppendNumber(text, stmt.NewNumber);
    text += '\t';
    stmt.StartStmt = end() + 1;
    AppendOutdented(text, body, levels, false);
    stmt.EndStmt = end();
    text += "\r\n\t";
    text.append(indent, '\t');
    stmt.StartRule = end() + 1;
    AppendRuleAnnotation(text, stmt.Rule, stmt.Arg1, stmt.Arg2);
    stmt.EndRule = end();
    text += "\r\n\r\n";
}

// Where the text begins to change: at the first marked statement, or at a block ahead of it that
// opens.
int FirstChangedLine(int first, const std::vector<int>& lostIndentation) {
    int line = 1;
    while (line < first && lostIndentation[static_cast<std::size_t>(line)] == 0) ++line;
    return line;
}

void RewriteText(int firstMarked, const std::vector<int>& lostIndentation) {
    const int first = FirstChangedLine(firstMarked, lostIndentation);
    std::string text;
    text.reserve(ProofText.size());
    text.append(ProofText.View(), 0, static_cast<std::size_t>(At(first).StartLine - 1));
    for (int line = first; line <= StmtCount; ++line) {
        if (At(line).Flagged) continue;
        AppendSurvivor(text, EditAt(line), lostIndentation[static_cast<std::size_t>(line)]);
    }
    ProofText = std::move(text);
}

// The insert line moves up with its statement. False if that has gone. Needs the old table.
bool MoveInsertLine() {
    const int last = std::min(InsertLine, StmtCount);
    if (last < 1 || At(last).Flagged) return false;
    for (int line = 1; line < last; ++line) InsertLine -= At(line).Flagged ? 1 : 0;
    ShowInsertLine();
    return true;
}

void RemoveMarkedRecords() {
    StmtTable.EraseIf([](const Statement& stmt) { return stmt.Flagged; });
    StmtCount = StmtTable.Count();
}

void PlaceCaret(int firstChanged) {
    if (InsertMode) return PutCaretBehindInsertMark();
    Proof.RTB.SelStart = 0;
    int above = std::min(firstChanged - 1, StmtCount);
    while (above > 0 && !At(above).Visible) --above;
    if (above == 0) return;
    // The detour through the end leaves the line near the top of the view.
    Proof.RTB.SelStart = Proof.RTB.TextLength();
    Proof.RTB.SelStart = At(above).ViewerStartLine - 1;
}

}  // namespace

void DeleteStmts(int& first) {
    const int firstChanged = first;
    for (int line = first; line <= StmtCount; ++line) {
        if (IsFallenConclusion(At(line))) ShowReopened(At(line).Arg1, line);
    }
    const std::vector<int> lostIndentation = LostIndentation(first);
    first = NumberSurvivors();
    RewriteReferences();
    RewriteText(firstChanged, lostIndentation);
    const bool insertLineLost = InsertMode && !MoveInsertLine();
    if (insertLineLost) EndInsertMode();
    RemoveMarkedRecords();
    if (StmtCount > 0) SetVisible(StmtCount, true);
    RelayoutViewer();
    ResetFonts();
    PlaceCaret(firstChanged);
    if (!insertLineLost) return;
    // Only now: while the message is up, what the window shows must agree with the proof.
    Beep("The line ahead of which statements were inserted has been deleted.");
    MsgBox({"Insert Mode OFF", "WARNING"});
}

}  // namespace tessaryn
