// Insert mode: new statements go in front of a line that the user picked, and only the lines above
// it can be used.
#pragma once

namespace tessaryn {

inline constexpr const char* SetInsertModePrompt =
    "Insert Mode: Click insert line for an ACTIVE statement";

inline bool InsertMode = false;
inline int InsertLine = 0;  // the number of the next statement; 0 while the mode is off

// New statements go in at this line; only lines above it can be referred to.
int InsertionLimit();

// The menu item: ends the mode, or waits for the click that starts it.
void ToggleInsertMode();

// The click while RuleMode is 44.
void GetInsertLineNo();

// Turns the mode off, with its label and check mark.
void EndInsertMode();

// Shows "^" and InsertLine in the label.
void ShowInsertLine();

// Where the display shows the place of the next statement: the start of the block that will follow
// it, or the end. 0-based; -1 while the mode is off.
int InsertMarkPlace();

// Puts the caret behind the nearest visible statement above InsertLine, or at 0.
void PutCaretBehindInsertMark();

}  // namespace tessaryn
