// From a text to its tokens.
#pragma once

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

// Does the text lex? Builds nothing.
bool Lexes(std::string_view text);

}  // namespace tessaryn
