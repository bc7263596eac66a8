#include "rules/Operands.h"

#include <algorithm>

#include "expr/Parse.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"

namespace tessaryn {

const ParseRec& NodeAt(const NodeList& nodes, int n) {
    return nodes[static_cast<std::size_t>(n)];
}

const ParseRec& Root(const NodeList& nodes) {
    return nodes.back();
}

const TokenRec& TokenAt(const TokenList& tokens, int k) {
    return tokens[static_cast<std::size_t>(k)];
}

Span WrittenSpan(const TokenList& tokens, int first, int last) {
    while (TokenAt(tokens, first).Position == 0) ++first;
    while (TokenAt(tokens, last).Position == 0) --last;
    const TokenRec& end = TokenAt(tokens, last);
    return {TokenAt(tokens, first).Position, end.Position + static_cast<int>(end.Token.size()) - 1};
}

Span SpanOfNode(const TokenList& tokens, int node) {
    const auto bracket = std::find_if(tokens.begin() + 1, tokens.end(),
                                      [&](const TokenRec& token) { return token.DPtr == node; });
    return WrittenSpan(tokens, static_cast<int>(bracket - tokens.begin()), bracket->TPtr);
}

NodeTexts::NodeTexts(const std::string& text, const TokenList& tokens, const NodeList& nodes)
    : text_(text), tokens_(tokens), brackets_(nodes.size()) {
    for (int k = static_cast<int>(tokens.size()) - 1; k > 0; --k) {
        brackets_[static_cast<std::size_t>(TokenAt(tokens, k).DPtr)] = k;
    }
}

std::string NodeTexts::operator[](int node) const {
    const int bracket = brackets_[static_cast<std::size_t>(node)];
    return Cut(text_, WrittenSpan(tokens_, bracket, TokenAt(tokens_, bracket).TPtr));
}

OperandSpans OperandsOf(const TokenList& tokens, int sign) {
    return {WrittenSpan(tokens, TokenAt(tokens, sign - 1).TPtr, sign - 1),
            WrittenSpan(tokens, sign + 1, TokenAt(tokens, sign + 1).TPtr)};
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

std::string JoinWritten(const TokenList& tokens, int first, int last) {
    std::string text;
    for (int k = first; k <= last; ++k) {
        if (TokenAt(tokens, k).Position > 0) text += TokenAt(tokens, k).Token;
    }
    return text;
}

bool TakeClickedToken(int& line, int& token, const char* needs) {
    SelectToken(line, token);
    if (line == 0) {
        BeepNoActiveStmt();
        return false;
    }
    if (token == 0) {
        // A text that does not parse has been reported by now.
        if (ParseError.empty()) {
            BeepAtLine(line, std::string("was clicked beside its signs: ") + needs + ".");
        }
        return false;
    }
    StmtText2 = NewStmtText;
    Arg1Pending = line;
    Arg2Pending = 0;
    return true;
}

void BeepAtToken(int line, int token, const char* needs) {
    BeepAtLine(line, "was clicked on " + TokenAt(TokenTable, token).Token + ": " + needs + ".");
}

bool ParseOrReport() {
    Parse();
    if (ParseError.empty()) return true;
    ReportParseError();
    return false;
}

void KeepAsSecond() {
    StmtText2 = NewStmtText;
    TokenTable2 = TokenTable;
    ParseTable2 = ParseTable;
}

}  // namespace tessaryn
