// Whole files, read and written in one go.
#pragma once

#include <optional>
#include <string>

namespace tessaryn {

// The bytes of a file; nothing if it is no regular file or cannot be read.
std::optional<std::string> ReadWholeFile(const std::string& path);

// Replaces a file so that a crash or a full disk leaves the old one whole: writes a temporary file
// beside it, flushes that to the disk and renames it. Owner, group, mode and access list are kept
// as far as the system allows; through a link, the file that it leads to is written.
// "", or one sentence that tells a person why it failed, with nothing left behind.
std::string ReplaceFile(const std::string& path, const std::string& bytes);

// The user's directory of a kind, an XDG base directory: what the variable names, if that is a full
// path, else what lies below the home directory; "" without one.
std::string UserDirectory(const char* variable, const std::string& belowHome);

// Removes the temporary files that crashed writers left in the directory of a file.
void RemoveLeftoversBeside(const std::string& path);

}  // namespace tessaryn
