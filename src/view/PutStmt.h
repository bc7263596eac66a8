// The one door through which a statement enters the proof.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

// Writes NewStmtText as a statement with rule RuleMode and references Arg1Pending, Arg2Pending, at
// the end or, in insert mode, at InsertLine, and rebuilds the display; the caret stands behind the
// new annotation. NewStmtText then holds the canonical text. References are line numbers below the
// new line. The caller has called BackUpUndo. On failure ParseError holds the message, which
// StatusLine shows, and nothing has been changed.
void PutStmt();

// Is there room for that many more statements? If not: beep, "Unable to process request" in
// StatusLine and ParseError.
bool StatementsFit(int count);

// The end of a rule: checks that there is room, takes the undo snapshot and calls PutStmt. False if
// the statement could not be written.
bool WriteStatement();

// The same for several texts, which become statements one behind the other with one rule and one
// pair of references. Either all are written or none.
bool WriteStatements(const std::vector<std::string>& texts);

}  // namespace tessaryn
