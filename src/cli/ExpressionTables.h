// Expressions in, answers out, one a line; for tools that want the parser without a proof.
#pragma once

#include <iosfwd>

namespace tessaryn {

// Each line of in is one JSON string; its token table, tree, canonical text and free variables go
// to out as one JSON object. 1 at the first line of another shape, with the reason on err; else 0.
int PrintParses(std::istream& in, std::ostream& out, std::ostream& err);

// Each line is a JSON array of two strings; out gets true if they are the same expression, else
// false.
int PrintComparisons(std::istream& in, std::ostream& out, std::ostream& err);

}  // namespace tessaryn
