// What a line was derived from, line by line.
#pragma once

#include <vector>

#include "check/ProofBytes.h"

namespace tessaryn::check {

// The lines, in ascending order, that `line` was derived from, itself included. A Conclusion comes
// from the last line of its block. With `least`, lines ahead of that are not looked for.
std::vector<int> Ancestry(const std::vector<Record>& records, int line, int least = 1);

}  // namespace tessaryn::check
