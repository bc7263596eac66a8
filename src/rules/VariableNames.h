// The names of bound variables as a rule offers them, reads them back and puts them into a text.
#pragma once

#include <string>
#include <vector>

#include "expr/Expression.h"

namespace tessaryn {

// "a, b"
std::string CommaList(const std::vector<std::string>& names);

// What MyInputBox asks for, and its answer to a wrong entry.
std::string AskForNamesText(std::size_t count);
const char* InvalidNamesText(std::size_t count);

// The entered names, from the parse in the tables; nothing if it is no list of `count` names.
std::vector<std::string> EnteredNames(std::size_t count);

// The text with each token that is one of the old names replaced by the new one in its place.
std::string ReplaceNames(std::string text, const TokenList& tokens,
                         const std::vector<std::string>& oldNames,
                         const std::vector<std::string>& newNames);

}  // namespace tessaryn
