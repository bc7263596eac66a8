#include "document/ActiveLines.h"
#include "entry/ActiveStmts.h"
#include "expr/Parse.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

// Where the text of a statement begins in the display, 0-based.
int ViewerStartStmt(const Statement& stmt) {
    return stmt.StartStmt - ViewOffset(stmt) - 1;
}

// The first written token that holds the place `offset` of the text (1-based); 0 if there is none.
int TokenAt(int offset) {
    for (std::size_t k = 1; k < TokenTable.size(); ++k) {
        const TokenRec& token = TokenTable[k];
        if (token.Position == 0 || token.Position > offset) continue;
        if (offset <= token.Position + static_cast<int>(token.Token.size()) - 1) {
            return static_cast<int>(k);
        }
    }
    return 0;
}

// The last written token up to the one that holds the place `offset`, or up to the end.
int LastTokenUpTo(int offset, bool& found) {
    int last = 0;
    found = false;
    for (std::size_t k = 1; k < TokenTable.size() && !found; ++k) {
        const TokenRec& token = TokenTable[k];
        if (token.Position == 0) continue;
        last = static_cast<int>(k);
        found = token.Position <= offset &&
                offset <= token.Position + static_cast<int>(token.Token.size()) - 1;
    }
    return last;
}

// Token indexes stay valid: TABs are white space.
void ParseWithoutTabs() {
    if (NewStmtText.find('\t') == std::string::npos) return;
    RemoveTabs(NewStmtText);
    ParseOrReport();
}

// The statement at the caret with its parse; 0 if there is none or it does not parse. stmt is set
// in the latter case.
bool ParseStmtAtCaret(int& stmt) {
    ActiveStmtAtCaret(stmt, NewStmtText);
    return stmt != 0 && ParseOrReport();
}

}  // namespace

void ActiveStmtAtCaret(int& stmt, std::string& text) {
    const int line = ShownStmtAt(Proof.RTB.SelStart + 1);
    stmt = line > 0 && IsActive(line, InsertionLimit()) ? line : 0;
    if (stmt != 0) text = StoredText(stmt);
}

void GetActiveStmt(int& stmt, std::string& text) {
    ActiveStmtAtCaret(stmt, text);
    if (stmt != 0) RemoveTabs(text);
}

void SelectToken(int& stmt, int& token) {
    stmt = token = 0;
    if (!ParseStmtAtCaret(stmt)) return;
    token = TokenAt(Proof.RTB.SelStart - ViewerStartStmt(At(stmt)) + 1);
    ParseWithoutTabs();
}

void SelectTokenRange(int& stmt, int& first, int& last) {
    stmt = first = last = 0;
    if (!ParseStmtAtCaret(stmt)) return;
    const int textStart = ViewerStartStmt(At(stmt));
    first = TokenAt(Proof.RTB.SelStart - textStart + 1);
    if (first == 0) return;
    if (Proof.RTB.SelLength == 0) {
        last = first;
        return;
    }
    bool found = false;
    last = LastTokenUpTo(Proof.RTB.SelStart + Proof.RTB.SelLength - textStart, found);
    if (!found) ParseWithoutTabs();
}

std::string WhyNoActiveStmt() {
    const int line = ShownStmtAt(Proof.RTB.SelStart + 1);
    if (line >= InsertionLimit()) {
        return "Line " + std::to_string(line) + " is not above the insert line " +
               std::to_string(InsertLine) + ": click a line above it.";
    }
    if (line > 0) {
        return "Line " + std::to_string(line) +
               " lies in a closed premise block: click an active line.";
    }
    return "There is no statement at this place: click an active line.";
}

void BeepNoActiveStmt() {
    Beep(WhyNoActiveStmt());
}

void BeepAtLine(int line, const std::string& whatIsWrong) {
    Beep("Line " + std::to_string(line) + " " + whatIsWrong);
}

}  // namespace tessaryn
