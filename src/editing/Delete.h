// Deleting statements. A proof is valid only as a whole, so what rests on a deleted line goes with
// it: one command cuts the proof off at a line, the other takes a line and all that depends on it.
#pragma once

namespace tessaryn {

// The clicks while RuleMode is 9 or DeleteAllRefMode.
void DeleteAllSub();
void DeleteAllRef();

// Forgets what an earlier deletion, or a file, has left in Flagged and NewNumber.
void ClearMarks();

// Marks a statement and all that depends on it, and gives their number. It depends if it refers to
// a marked line, if it is the Conclusion behind one, or if one of its free variables would lose the
// line that brought it in, come in twice, or turn from red to green or back.
void FlagStmts(int stmt, int& count);

// Removes the marked statements. first: the lowest of them; afterwards the number of statements
// left. A block whose Conclusion goes becomes an open premise, with its lines shown; the survivors
// are renumbered, in references and text as well. The display is rebuilt and the caret placed.
// Insert mode ends, with a message, if its line has gone.
void DeleteStmts(int& first);

// The statement that a click of the delete commands means; 0, with a beep, if there is none.
int StmtToDelete();

// The end of both commands.
void FinishDeletion();

}  // namespace tessaryn
