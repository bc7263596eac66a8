// The frame of the rules that rewrite one clicked sign with its two operands, at any depth of a
// statement, and carry over everything around it.
#pragma once

#include <vector>

namespace tessaryn {

// What becomes of a sign: P and Q in `form` stand for the texts of its operands.
struct Rewrite {
    const char* sign;
    const char* form;  // "~[[P] & ~[Q]]"
};

enum class AfterParseError { StayPending, EndRule };

// One click of such a rule. `needs` ends the reason of a beep: "Contra needs =>".
void RewriteInPlace(const char* needs, const std::vector<Rewrite>& rewrites, AfterParseError after);

}  // namespace tessaryn
