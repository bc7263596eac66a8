#include "expr/Operands.h"

#include <algorithm>

namespace tessaryn {

Span WrittenSpan(const Expression& expression, int first, int last) {
    while (TokenAt(expression, first).Position == 0) ++first;
    while (TokenAt(expression, last).Position == 0) --last;
    const TokenRec& end = TokenAt(expression, last);
    return {TokenAt(expression, first).Position,
            end.Position + static_cast<int>(end.Token.size()) - 1};
}

Span SpanOfNode(const Expression& expression, int node) {
    const TokenList& tokens = expression.tokens;
    const auto bracket = std::find_if(tokens.begin() + 1, tokens.end(),
                                      [&](const TokenRec& token) { return token.DPtr == node; });
    return WrittenSpan(expression, static_cast<int>(bracket - tokens.begin()), bracket->TPtr);
}

NodeTexts::NodeTexts(const Expression& expression)
    : expression_(expression), brackets_(expression.nodes.size()) {
    for (int k = static_cast<int>(expression.tokens.size()) - 1; k > 0; --k) {
        brackets_[static_cast<std::size_t>(TokenAt(expression, k).DPtr)] = k;
    }
}

std::string NodeTexts::operator[](int node) const {
    const int bracket = brackets_[static_cast<std::size_t>(node)];
    return Cut(expression_.text,
               WrittenSpan(expression_, bracket, TokenAt(expression_, bracket).TPtr));
}

OperandSpans OperandsOf(const Expression& expression, int sign) {
    return {WrittenSpan(expression, TokenAt(expression, sign - 1).TPtr, sign - 1),
            WrittenSpan(expression, sign + 1, TokenAt(expression, sign + 1).TPtr)};
}

std::string Cut(const std::string& text, Span span) {
    return text.substr(static_cast<std::size_t>(span.start - 1),
                       static_cast<std::size_t>(span.end - span.start + 1));
}

std::string Splice(const std::string& text, Span span, const std::string& piece) {
    std::string spliced = text;
    spliced.replace(static_cast<std::size_t>(span.start - 1),
                    static_cast<std::size_t>(span.end - span.start + 1), piece);
    return spliced;
}

std::string JoinWritten(const Expression& expression, int first, int last) {
    std::string text;
    for (int k = first; k <= last; ++k) {
        if (TokenAt(expression, k).Position > 0) text += TokenAt(expression, k).Token;
    }
    return text;
}

std::vector<std::string> LeadingVariables(const Expression& expression, int quantifier) {
    std::vector<std::string> names;
    for (const ParseRec* node = &Root(expression); node->Rule == quantifier;
         node = &NodeAt(expression, node->Ptr2)) {
        names.push_back(NodeAt(expression, node->Ptr1).Name);
    }
    return names;
}

std::string ReplaceNames(const Expression& expression, const std::vector<std::string>& oldNames,
                         const std::vector<std::string>& newNames) {
    std::string text = expression.text;
    const TokenList& tokens = expression.tokens;
    // From the right, so that the positions to the left stay valid.
    for (auto token = tokens.rbegin(); token != tokens.rend(); ++token) {
        const auto found = std::find(oldNames.begin(), oldNames.end(), token->Token);
        if (found == oldNames.end()) continue;
        text.replace(static_cast<std::size_t>(token->Position - 1), token->Token.size(),
                     newNames[static_cast<std::size_t>(found - oldNames.begin())]);
    }
    return text;
}

}  // namespace tessaryn
