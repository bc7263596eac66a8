// The principle of induction, for one property.
#pragma once

#include <string>

#include "inference/Outcome.h"

namespace tessaryn {

// For a property P of the natural number named `variable`:
// P(1) & ALL(k):[k @ n & P(k) => P(k+1)] => ALL(k):[k @ n => P(k)]
Outcome Induction(const Expression& property, const std::string& variable);

// Does a quantifier of the property bind the number 1, which would be caught when it is put in for
// the variable?
bool BindsOne(const Expression& property);

}  // namespace tessaryn
