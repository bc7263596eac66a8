// The whole state of the program as one JSON object, for tests and tools.
#pragma once

#include <string>

namespace tessaryn {

// On one line. beepsFrom, messagesFrom: how many of them to leave out at the start of the logs.
std::string StateAsJson(std::size_t beepsFrom, std::size_t messagesFrom);

}  // namespace tessaryn
