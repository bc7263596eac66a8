// The Conclusion Rule: a premise and the last line of its block give one statement that stands
// without the block.
#pragma once

#include <string>
#include <vector>

#include "inference/Outcome.h"

namespace tessaryn {

// A & ~A, ~A & A, A <=> ~A, ~A <=> A and ~x=x.
bool IsContradiction(const Expression& statement);

// From premise P and last line Q, ALL(x):[P => EXIST(y):Q], where x are the names that the premise
// introduced and y those introduced inside the block and free in Q; from a contradiction
// ~EXIST(x):P.
Outcome Conclude(const Expression& premise, const Expression& last,
                 const std::vector<std::string>& universal,
                 const std::vector<std::string>& existential);

}  // namespace tessaryn
