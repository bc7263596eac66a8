// Tables of expressions as text.
#pragma once

#include <string>
#include <vector>

#include "expr/Expression.h"

namespace tessaryn {

// The tree on one line, "All(x,Imply(Elt(x,s),Pred(P,x)))"; "" after a failure.
std::string Tree(const Expression& expression);

// One line for each token: text, Position, TPtr, DPtr, and " bound" if it is.
std::vector<std::string> TokenLines(const Expression& expression);

}  // namespace tessaryn
