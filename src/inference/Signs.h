// What the rules share that rewrite one sign of a statement and carry over everything around it.
#pragma once

#include <initializer_list>
#include <string>

#include "inference/Outcome.h"

namespace tessaryn {

// What becomes of a sign: P and Q in `form` stand for the texts of its operands.
struct Rewrite {
    const char* sign;
    const char* form;  // "~[[P] & ~[Q]]"
};

// Rewrites the sign at token `sign`. `needs` ends the reason of a refusal: "Contra needs =>".
Outcome RewriteAt(const Expression& statement, int sign, std::initializer_list<Rewrite> rewrites,
                  const char* needs);

// The refusal of a token that the rule does not take.
Outcome RefusedSign(const Expression& statement, int token, const char* needs);

}  // namespace tessaryn
