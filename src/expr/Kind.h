// What a token is, for the inside of the parser: an operator has the node type that it makes, a
// name that of its leaf, all others have one of the values below.
#pragma once

#include "expr/Expression.h"

namespace tessaryn {

namespace Kind {
enum : int { Colon = 30, RoundOpen, RoundClose, SquareOpen, SquareClose, Count };
}  // namespace Kind

// The kind of a token in normal form, which must not be empty.
int KindOf(const std::string& token);

inline bool IsOpening(int kind) {
    return kind == Kind::RoundOpen || kind == Kind::SquareOpen;
}
inline bool IsClosing(int kind) {
    return kind == Kind::RoundClose || kind == Kind::SquareClose;
}
inline bool IsName(int kind) {
    return kind == Node::Atom || kind == Node::Prop;
}

// The same straight from a table, where the first character tells enough. Element 0 is no bracket.
inline bool IsOpening(const TokenRec& token) {
    return token.Token[0] == '(' || token.Token[0] == '[';
}
inline bool IsClosing(const TokenRec& token) {
    return token.Token[0] == ')' || token.Token[0] == ']';
}
inline bool IsBracket(const TokenRec& token) {
    return IsOpening(token) || IsClosing(token);
}
inline bool IsQuantifier(const TokenRec& token) {
    const char first = token.Token[0];
    return (first == 'A' && token.Token == "ALL") || (first == 'E' && token.Token == "EXIST");
}

}  // namespace tessaryn
