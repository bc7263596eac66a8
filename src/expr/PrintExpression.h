// The canonical text of an expression.
#pragma once

#include <string>

#include "expr/Expression.h"

namespace tessaryn {

// The canonical text of the expression in TokenTable, ParseTable and NewStmtText after a successful
// Parse; changes none of them. Brackets stand only where the tree needs them, square ones round the
// operands of "~", the quantifiers and the connectives, round ones elsewhere. A line break (CR LF)
// stands for the blank ahead of a connective that began a line in NewStmtText. Printing what was
// printed changes nothing.
std::string PrintExpression();

// The same for any successful parse.
std::string PrintExpression(const Expression& expression);

}  // namespace tessaryn
