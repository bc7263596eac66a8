// From a text to its tokens.
#pragma once

#include <string>
#include <string_view>

#include "expr/Expression.h"

namespace tessaryn {

// Replaces tokens by those of the source, with each bracket linked to its partner. Round and square
// brackets are matched apart from each other. error is "" on success; otherwise tokens holds what
// was read so far and errorPos the 1-based byte of the fault, 0 if it has no place.
// There is no limit of length here; Parse has one.
void Lex(const std::string& source, TokenList& tokens, std::string& error, int& errorPos);

// Appends a token that is not linked and has no node.
void AddToken(std::string_view text, int position, TokenList& tokens);

}  // namespace tessaryn
