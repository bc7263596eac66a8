// The way from a click or a drag in the display to an active statement and a token.
#pragma once

#include <string>

namespace tessaryn {

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

// What lies at a caret that GetActiveStmt finds no statement for, in a sentence; the beep for a
// click there.
std::string WhyNoActiveStmt();
void BeepNoActiveStmt();

// "Line 4 is no implication" style reasons: the beep for a clicked statement that a rule can't use.
void BeepAtLine(int line, const std::string& whatIsWrong);

}  // namespace tessaryn
