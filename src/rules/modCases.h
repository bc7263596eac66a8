// What Cases keeps between its two clicks.
#pragma once

#include "expr/Expression.h"

namespace tessaryn {

inline Expression CasesOr;  // the OR-statement of the first click

}  // namespace tessaryn
