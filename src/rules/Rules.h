// The inference rules, as the menus and the click dispatch call them. Each has its own module,
// which tells its inference and its clicks.
#pragma once

namespace tessaryn {

inline constexpr const char* JoinPrompt = "Join:  Click any active statement (1st of 2)...";

// Dialogue and immediate rules.
void Premise();
void Axiom();
void Conclusion();
void Reflexivity();
void OrNotCommand();

// Click rules. firstClick: the first of two clicks is awaited; the rule changes it.
void Join(bool& firstClick);
void Spec();
void Rename();
void Reorder();
void ExistGenSelect();
void Subsitute(bool& firstClick);

}  // namespace tessaryn
