// The run-time values of the main window: what rule is pending, what it hands to the writer, which
// proof is open.
#pragma once

#include <string>

namespace tessaryn {

inline int RuleMode = 0;     // the pending rule or click action; 0 none
inline int Arg1Pending = 0;  // line numbers that PutStmt records; 0 none
inline int Arg2Pending = 0;
inline std::string SpecName;      // the name that E Spec brings in
inline std::string BoundVarName;  // the variable of the leading quantifier of a clicked statement
inline bool FirstClick = false;   // a two-click rule waits for its first click
inline bool ArbOrLeft = false;    // rule 22: the entered expression goes on the left
inline bool OperationCancelled = false;  // a modal question ended in Cancel
inline std::string ProofFileName;        // path of the open proof; "" when untitled
inline std::string AppPath;              // directory of the settings files; "" for none
inline bool EditingIntro = false;        // the Comment form works on the introduction
inline int CommentLine = 0;              // the statement whose comment the Comment form works on

// RuleMode values that are no rule numbers of statements.
inline constexpr int DeleteAllRefMode = -1;
inline constexpr int ToggleHighlightMode = 32;

}  // namespace tessaryn
