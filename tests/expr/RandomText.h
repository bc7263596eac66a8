// Seeded random texts of the expression language.
#pragma once

#include <random>
#include <string>

namespace tessaryn {

using Random = std::mt19937;

// A formula that parses, apart from clashes of its variables; signs spaced, bracketed and broken
// over lines at will.
std::string RandomFormula(Random& random, int depth);

// Any row of up to length tokens.
std::string RandomTokens(Random& random, int length);

// text with a few characters or stretches of it taken out, doubled or replaced by tokens.
std::string Mutated(Random& random, std::string text);

}  // namespace tessaryn
