// Active statements, and the way from a click or a drag in the display to a statement and a token.
//
// A line is active if it stands below the insertion limit and in no closed block: only such lines
// can be used by a rule. Whether a line is shown plays no part.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

// New statements go in at this line; only lines below it can be referred to.
int InsertionLimit();

// The active lines below `limit`, ascending.
std::vector<int> ActiveLines(int limit);
inline std::vector<int> ActiveLines() {
    return ActiveLines(InsertionLimit());
}

// Is this line one of them?
bool IsActive(int line);

// The highest active line that is an open Premise; 0 if there is none.
int InnermostOpenPremise();

// Each of the following gives statement number 0 if the caret of the display is on no active line,
// and token 0 if it is on no token. They do not beep, except where the stored text does not parse.

// The statement and its stored text, TABs kept. Without a statement `text` stays as it was.
void ActiveStmtAtCaret(int& stmt, std::string& text);

// The same without TABs; `text` may be NewStmtText.
void GetActiveStmt(int& stmt, std::string& text);

// The statement and the token at the caret. NewStmtText is the text without TABs, TokenTable and
// ParseTable its parse.
void SelectToken(int& stmt, int& token);

// The same for a selection: the tokens at its start and its end.
void SelectTokenRange(int& stmt, int& first, int& last);

// The beep for a click that GetActiveStmt finds no statement for; says what lies there.
void BeepNoActiveStmt();

// "Line 4 is no implication" style reasons: the beep for a clicked statement that a rule can't use.
void BeepAtLine(int line, const std::string& whatIsWrong);

}  // namespace tessaryn
