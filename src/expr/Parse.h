// From a text to its token table and its tree.
//
// The token table after a success. Every name, application and operator with its operands stands
// in a bracket pair of its own, also where brackets were written; the pairs put in have Position 0.
// Any bracket has the node of its group in DPtr. So the parts of a formula lie at fixed places:
//
//   name at j         its wrapper's brackets at j - 1 and j + 1
//   f(x), f at i      "(" at i - 2, written "(" i + 2, its partner TPtr(i + 2)
//   ~P, ~ at i        "(" at i - 1, operand from i + 1 to TPtr(i + 1)
//   P & Q, & at i     left operand from TPtr(i - 1) to i - 1, right from i + 1 to TPtr(i + 1)
//   ALL(x):P at i     "(" at i - 1, x in written brackets from i + 1 to i + 5, x at i + 3,
//                     ":" at i + 6, body from i + 7 to TPtr(i + 7)
//
// Token 1 encloses the whole; DPtr of 1 is the root.
//
// The parse table: first the names, one node for each different one, in the order of first
// appearance; then the composite nodes in the order of their closing brackets. An operand comes
// ahead of its parent, the root last, and only leaves are shared.
#pragma once

#include <string>

#include "expr/Expression.h"

namespace tessaryn {

// The message of a text or a table beyond the limits.
inline constexpr const char* UnableToParse = "Unable to parse expression";

// Parses the expression's text into its other parts. The error is "" on success, else a message;
// both tables are then empty. Of several faults the one is reported that the passes meet first,
// which need not be the leftmost.
void Parse(Expression& expression);

// The same as a value.
Expression ParseExpression(std::string text);

// Parses the expression in hand. A caller that needs an earlier result has copied it.
void Parse();

}  // namespace tessaryn
