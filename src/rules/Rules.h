// The inference rules, as the menus and the click dispatch call them. Each has its own module,
// which tells its inference and its clicks.
#pragma once

namespace tessaryn {

inline constexpr const char* JoinPrompt = "Join:  Click any active statement (1st of 2)...";

// Dialogue and immediate rules.
void Premise();
void Axiom();
void Conclusion();

// Click rules. firstClick: the first of two clicks is awaited; the rule changes it.
void Join(bool& firstClick);
void Split();
void Detach(bool& firstClick);

// What `Continue` of MyInputBox does for the Conclusion Rule: checks the new names of the bound
// variables and puts the renamed statement into NewStmtText. Hides the box when all is well.
void ContinueConclusion();

}  // namespace tessaryn
