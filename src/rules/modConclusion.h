// What the Conclusion Rule keeps while it asks for the names of the bound variables; Rename and
// Reorder keep those of the leading quantifiers in the same list while they ask.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

// Names to be bound universally, in the order of the premise's FreeVars, and existentially, in that
// of the last statement's.
inline std::vector<std::string> ConclusionUVars;
inline std::vector<std::string> ConclusionEVars;

void ResetConclusion();

}  // namespace tessaryn
