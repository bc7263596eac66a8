// From a node of a parse to the piece of text that it was written as.
#pragma once

#include <string>

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

std::string Cut(const std::string& text, Span span);

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

// Parses NewStmtText. On an error: beep, "PARSER ERROR: " with the message in StatusLine.
bool ParseOrReport();

// Keeps NewStmtText and its parse as StmtText2, TokenTable2, ParseTable2.
void KeepAsSecond();

}  // namespace tessaryn
