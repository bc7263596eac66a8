// From a node of a parse, or a sign in it, to the pieces of text that it was written as, and back
// into a text. All takes a successful parse.
#pragma once

#include <string>
#include <vector>

#include "expr/Expression.h"

namespace tessaryn {

// Node number n, and token number k, both from 1.
inline const ParseRec& NodeAt(const Expression& expression, int n) {
    return expression.nodes[static_cast<std::size_t>(n)];
}
inline const TokenRec& TokenAt(const Expression& expression, int k) {
    return expression.tokens[static_cast<std::size_t>(k)];
}
inline int RootIndex(const Expression& expression) {
    return static_cast<int>(expression.nodes.size()) - 1;
}

// A piece of a text, in 1-based bytes, both ends included.
struct Span {
    int start = 0;
    int end = 0;
};

// The text from the first written token at or behind token `first` to the last one at or ahead of
// token `last`.
Span WrittenSpan(const Expression& expression, int first, int last);

// Where a node stands: from its first opening bracket to that bracket's partner, with a written
// bracket pair around it.
Span SpanOfNode(const Expression& expression, int node);

// The texts of many nodes of one expression, each found at once. The expression must outlive it.
class NodeTexts {
  public:
    explicit NodeTexts(const Expression& expression);

    std::string operator[](int node) const;

  private:
    const Expression& expression_;
    std::vector<int> brackets_;  // the first opening bracket of each node
};

// The operands of the sign with two operands at token `sign`, with written brackets around them.
// The parser has put each into a bracket pair, so that precedence needs no further thought.
struct OperandSpans {
    Span left;
    Span right;

    Span Whole() const { return {left.start, right.end}; }
};
OperandSpans OperandsOf(const Expression& expression, int sign);

std::string Cut(const std::string& text, Span span);
inline std::string TextOfNode(const Expression& expression, int node) {
    return Cut(expression.text, SpanOfNode(expression, node));
}

// The text with another piece in the place of `span`.
std::string Splice(const std::string& text, Span span, const std::string& piece);

// The tokens `first` to `last` as written, without blanks between them.
std::string JoinWritten(const Expression& expression, int first, int last);

// The variables of the leading quantifiers of one kind, Node::ALL or Node::EXIST, outermost first.
std::vector<std::string> LeadingVariables(const Expression& expression, int quantifier);

// The text with each token that is one of the old names replaced by what stands in its place among
// the new ones.
std::string ReplaceNames(const Expression& expression, const std::vector<std::string>& oldNames,
                         const std::vector<std::string>& newNames);

}  // namespace tessaryn
