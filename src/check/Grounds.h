// What a line was derived from, line by line.
#pragma once

#include <array>
#include <vector>

#include "check/ProofBytes.h"

namespace tessaryn::check {

// The lines that a line was derived from in one step, 0 for none. A Conclusion comes from the last
// line of its block.
std::array<int, 2> Sources(const std::vector<Record>& records, int line);

// The lines, in ascending order, that `line` was derived from, itself included. With
// `least`, lines ahead of that are not looked for.
std::vector<int> Ancestry(const std::vector<Record>& records, int line, int least = 1);

}  // namespace tessaryn::check
