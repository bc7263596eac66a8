// The whole state of the program as one JSON object, for tests and tools.
#pragma once

#include <cstddef>
#include <iosfwd>

namespace tessaryn {

// On one line. beepsFrom, messagesFrom: how many of them to leave out at the start of the logs.
void WriteState(std::size_t beepsFrom, std::size_t messagesFrom, std::ostream& out);

}  // namespace tessaryn
