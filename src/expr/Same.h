// Comparison of expressions up to the names of bound variables, and their free variables.
#pragma once

#include <string>

#include "expr/Expression.h"

namespace tessaryn {

// Whether the two texts are the same expression but for blanks, line breaks, redundant brackets,
// the kind of bracket and the names of bound variables. False if one of them does not parse.
bool Same(const std::string& a, const std::string& b);

// What two texts have in common exactly if they are the same: the canonical text with generated
// names for the bound variables. "" if the text does not parse.
std::string NamelessForm(const std::string& text);

// The free variables of the tables of the last successful Parse as a name list, in the order of
// first appearance. Numerals and function names are among them, capitalised names are not.
std::string CollectFreeVars();
std::string FreeVarsOf(const Expression& expression);

}  // namespace tessaryn
