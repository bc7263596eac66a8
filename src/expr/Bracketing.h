// The first phase of the parser: brackets round every name, application and operator.
#pragma once

#include "expr/Expression.h"

namespace tessaryn {

// From the tokens of a successful Lex to the fully bracketed table: each name, each application and
// each operator with its operands stands in a bracket pair of its own, put in with Position 0.
// Appends the leaves to the nodes, one for each different name, and sets the DPtr of the brackets
// round a name; all other groups have no node yet. The nodes hold element 0 only at the call.
// False on failure, with the error; the tables are then unusable.
//
// The result, and the message that comes first, are those of a series of passes over the table,
// one for each level of operators from the tightest to the loosest; see Bracketing.cpp.
bool BracketTokens(Expression& expression);

}  // namespace tessaryn
