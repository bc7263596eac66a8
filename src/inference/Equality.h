// The rules of equality.
#pragma once

#include <string>

#include "inference/Outcome.h"

namespace tessaryn {

// x = x, for a term.
Outcome Reflex(const Expression& term);

// A = B to B = A, anywhere in a statement, at the sign. Both sides are terms, which need no
// brackets beside "=".
Outcome Sym(const Expression& statement, int sign);
inline constexpr const char* SymNeeds = "Sym needs a click on =";

// An equation as Substitute takes it: which of its sides is put in, and which it replaces. The side
// that was clicked is put in; a click on the sign means the left one.
struct EquationSides {
    std::string source;
    std::string target;
};
EquationSides SidesOf(const Expression& equation, int clickedToken);
// Tells whether it is an equation.
Outcome SubstituteFrom(const Expression& equation);

// A term as it can stand in the place of another without coming apart.
std::string InBracketsIfNeeded(const Expression& term);

// The parser's checks of the names must hold over both statements at once: no name may be free in
// the one and bound in the other. So no occurrence of the target holds a bound variable either.
// Gives the message of the parser, "" if all is well.
std::string FitTogether(const Expression& statement, const std::string& equation);

// Tells whether the target occurs in the statement.
Outcome SubstituteIn(const Expression& statement, const Expression& target);

}  // namespace tessaryn
