// The second phase of the parser: the nodes, read off the bracketed table.
#pragma once

#include "expr/Expression.h"

namespace tessaryn {

// From the tables of a successful BracketTokens to those of a parsed expression: sets DPtr of all
// brackets and Bound of the bound names, and appends the composite nodes in the order of their
// closing brackets. After a failure, told in the error, the tables are unusable.
void BuildNodes(Expression& expression);

}  // namespace tessaryn
