// The settings that outlive the program: four small files in the directory AppPath. They are read
// at the start and written at each change.
//
//   DefaultDir.bin    header with 0; the default directory as a counted string
//   RecentFiles.bin   header with the number of entries, 1 to 5 (0: none yet); that many counted
//                     strings, full paths, the most recent first
//   UserFontSize.bin  header with StmtFontSize
//   UserOption.bin    a 16-bit integer: 0 a tip is wanted at the start, anything else none
//
// The header is "Tessaryn 1" and a 16-bit integer; strings are as in a proof file, none above
// 65,534 bytes. A file is never shortened: what an older, longer content leaves behind the new one
// is not read.
//
// With an AppPath of "" nothing is read or written.
#pragma once

#include <string>

#include "platform/Controls.h"

namespace tessaryn {

inline std::string DefaultDir;  // where the file dialogues begin; "" until set

// The directory for AppPath: the program's own if it holds the four files, otherwise the user's,
// which is made with the four files as delivered at its first use. "" if the user has none.
std::string FindAppPath(const std::string& programDir);

// Reads all four. What can't be read is reported and stays as it is. `then` runs behind the
// reports.
void LoadSettings(const EventHandler& then);

void GetFontSize(const EventHandler& then);
void SaveFontSize();
template <int size>
void ChooseTextSize();  // the three sizes of the menu: 10, 12, 14
// The same for the next one of them; nothing beyond the last.
void StepTextSize(bool larger);

void LoadRecentMenu(const EventHandler& then);
// Puts ProofFileName at the head of the recent files, in the file and in the menu.
void UpdateRecentFiles();
template <int place>
void OpenRecentFile();  // 1 to 5

// "", or why it can't be saved, as ReplaceFile has it; DefaultDir is then as it was.
std::string SaveDefaultDir(const std::string& directory);

bool TipWanted();
// Sets the mark in the menu and writes the wish. "", or why that failed.
std::string SaveTipWish(bool wanted);
void ToggleShowTip();

}  // namespace tessaryn
