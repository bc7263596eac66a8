// The inference rules, as the menus and the click dispatch call them. Each has its own module,
// which tells its inference and its clicks.
#pragma once

#include <string>

namespace tessaryn {

inline constexpr const char* JoinPrompt = "Join:  Click any active statement (1st of 2)...";

// Dialogue and immediate rules.
void Premise();
void Axiom();
void Conclusion();
void Reflexivity();

// Click rules. firstClick: the first of two clicks is awaited; the rule changes it.
void Join(bool& firstClick);
void Spec();
void Rename();
void Reorder();
void ExistGenSelect();
void Subsitute(bool& firstClick);

// What `Continue` of MyInputBox does for the Conclusion Rule: checks the new names of the bound
// variables and puts the renamed statement into NewStmtText. Hides the box when all is well.
void ContinueConclusion();

// The same for E Spec, Rename and Reorder: check the entry, write the statement, hide the box.
void ContinueESpec();
void ContinueRename();
void ContinueReorder();

// What `Continue` of TestParser does for Reflex with an entry that parses: checks the term and
// writes the statement. Gives "" or the message of the refusal.
std::string AcceptReflexTerm();

// The same for U Spec.
std::string AcceptUSpec();

}  // namespace tessaryn
