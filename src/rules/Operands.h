// From a node of a parse, or a clicked sign, to the pieces of text that it was written as, and back
// into a statement.
#pragma once

#include <string>
#include <vector>

#include "expr/Expression.h"

namespace tessaryn {

// A piece of a text, in 1-based bytes, both ends included.
struct Span {
    int start = 0;
    int end = 0;
};

// The text from the first written token at or behind token `first` to the last one at or ahead of
// token `last`.
Span WrittenSpan(const TokenList& tokens, int first, int last);

// Where a node stands: from its first opening bracket to that bracket's partner, with a written
// bracket pair around it.
Span SpanOfNode(const TokenList& tokens, int node);

// The texts of many nodes of one expression, each found at once.
class NodeTexts {
  public:
    NodeTexts(const std::string& text, const TokenList& tokens, const NodeList& nodes);

    std::string operator[](int node) const;

  private:
    const std::string& text_;
    const TokenList& tokens_;
    std::vector<int> brackets_;  // the first opening bracket of each node
};

// The operands of the sign with two operands at token `sign`, with written brackets around them.
// The parser has put each into a bracket pair, so that precedence needs no further thought.
struct OperandSpans {
    Span left;
    Span right;
};
OperandSpans OperandsOf(const TokenList& tokens, int sign);

std::string Cut(const std::string& text, Span span);

// The text with another piece in the place of `span`.
std::string Splice(const std::string& text, Span span, const std::string& piece);

// The tokens `first` to `last` as written, without blanks between them.
std::string JoinWritten(const TokenList& tokens, int first, int last);

// Node number n of a parse table.
const ParseRec& NodeAt(const NodeList& nodes, int n);
// The root, its last entry.
const ParseRec& Root(const NodeList& nodes);
inline int RootIndex(const NodeList& nodes) {
    return static_cast<int>(nodes.size()) - 1;
}
const TokenRec& TokenAt(const TokenList& tokens, int k);

// Finds the statement and the token of a click for a rule that rewrites a statement at one token.
// True: NewStmtText and the tables hold the statement, StmtText2 a copy of the text, Arg1Pending
// its number, Arg2Pending 0. Otherwise it has beeped; `needs` ends the reason: "Contra needs =>".
bool TakeClickedToken(int& line, int& token, const char* needs);

// The beep for a token that the rule does not take.
void BeepAtToken(int line, int token, const char* needs);

// Parses NewStmtText. On an error: beep, "PARSER ERROR: " with the message in StatusLine.
bool ParseOrReport();

// Keeps NewStmtText and its parse as StmtText2, TokenTable2, ParseTable2.
void KeepAsSecond();

}  // namespace tessaryn
