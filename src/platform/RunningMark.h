// Files that tell that a program is running: each is locked by its program until that ends, by
// whatever way.
#pragma once

#include <string>

namespace tessaryn {

// Makes the file and holds it. False if that can't be done.
bool HoldMark(const std::string& path);
// Removes the files that this program holds.
void DropMarks();

// Does a program hold the file? None holds one that is missing. The locks of another machine that
// shares the directory may be out of sight.
bool MarkIsHeld(const std::string& path);

// The name of this machine, as far as it may stand in the name of a file.
std::string MachineName();

}  // namespace tessaryn
