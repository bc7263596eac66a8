// The parser by its definition: passes over a table that rewrite every index at each bracket pair.
// Slow and plain, to hold the real one against.
#pragma once

#include <string>

#include "expr/Expression.h"

namespace tessaryn {

Expression ReferenceParse(const std::string& text);

}  // namespace tessaryn
