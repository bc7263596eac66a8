// The names of bound variables as a rule offers them, reads them back and puts them into a text.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

// "a, b"
std::string CommaList(const std::vector<std::string>& names);

// What MyInputBox asks for.
std::string AskForNamesText(std::size_t count);

// Its answer: the second expression with the entered names in the place of the old ones. "" after a
// refusal, with the message `alreadyUsed` if the statement would not be the same but for the names
// of bound variables.
std::string RenamedAsEntered(const std::vector<std::string>& oldNames, const char* alreadyUsed);

}  // namespace tessaryn
