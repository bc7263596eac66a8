// Proof files held against the second checker.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "check/Check.h"

namespace tessaryn {

struct CheckRequest {
    bool asJson = false;
    bool allLines = false;  // tell of each line what it rests on
    std::string library;    // the directory of the theorems that count as such; "" for none
    bool theorems = false;  // tell of those, and of no files
    int jobs = 1;           // threads that read the library
    std::vector<std::string> files;
};

// Prints a line for each file, or a JSON object. Exit status: 0 all accepted, 1 one refused, 2 none
// refused but one declined, or not to be read.
int CheckFiles(const CheckRequest& request, std::ostream& out, std::ostream& err);
// Prints a line for each theorem of the library, with what it rests on.
int ListTheorems(const CheckRequest& request, std::ostream& out, std::ostream& err);

// The bytes of a file, so many at most; nothing if it can't be read.
std::optional<std::string> ReadBeginning(const std::string& path, std::uint64_t most);

// Nothing if it can't be read. As much of it as the editor would read.
std::optional<check::CheckedProof> CheckFile(const std::string& path);

}  // namespace tessaryn
