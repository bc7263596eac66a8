// Where a term stands inside a statement.
//
// An occurrence is a bracket pair of the statement's token table whose node is the same expression
// as the term. No term binds a name, so this can be told from the nodes: it is what Same says of
// the two texts. Brackets written around the whole occurrence do not belong to it.
#pragma once

#include <optional>
#include <vector>

#include "expr/Expression.h"
#include "expr/Operands.h"

namespace tessaryn {

// By node of `nodes`: whether it is the same as the root of `term`. Takes time in proportion to the
// length of both.
std::vector<bool> NodesThatAre(const NodeList& term, const NodeList& nodes);

// How the search for all occurrences goes on behind a node of the term's type, on its way from the
// last token to the first.
enum class Search {
    OutermostOnly,    // with the next token; behind an occurrence ahead of all of it
    AheadOfLastToken  // ahead of the last token inside the node, whether it is an occurrence or not
};

// The occurrences of the term, from left to right. None lies inside another.
std::vector<Span> AllOccurrences(const NodeList& term, const Expression& statement, Search search);

// The outermost occurrence that holds the character `place` (1-based).
std::optional<Span> OccurrenceAt(const NodeList& term, const Expression& statement, int place);

}  // namespace tessaryn
