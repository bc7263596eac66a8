// From a text to its tokens.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "expr/Expression.h"

namespace tessaryn {

// Reads the tokens of the expression's text, with each bracket linked to its partner. Round and
// square brackets are matched apart from each other. After a failure the tokens are those read so
// far. There is no limit of length here; Parse has one. The nodes are left alone.
void Lex(Expression& expression);

// The same as a value.
Expression LexExpression(std::string text);

// Bytes of the token at the head of a text; 0 if white space, an illegal character or nothing is
// there.
std::size_t TokenLength(std::string_view text);

// Does the text lex? Builds nothing.
bool Lexes(std::string_view text);

}  // namespace tessaryn
