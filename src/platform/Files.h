// Whole files, read and written in one go.
#pragma once

#include <optional>
#include <string>

namespace tessaryn {

// The bytes of a file; nothing if it is no regular file or cannot be read.
std::optional<std::string> ReadWholeFile(const std::string& path);

// Replaces a file so that a crash or a full disk leaves the old one whole: writes a temporary file
// beside it, flushes that to the disk and renames it. False, with nothing left behind, on failure.
bool ReplaceFile(const std::string& path, const std::string& bytes);

}  // namespace tessaryn
