#include "cli/Ink.h"

#include <ostream>

namespace tessaryn {

namespace {

// The stream's own place for whether it shows inks.
long& ShowsInk(std::ostream& stream) {
    static const int place = std::ios_base::xalloc();
    return stream.iword(place);
}

}  // namespace

void UseColours(std::ostream& stream) {
    ShowsInk(stream) = 1;
}

std::ostream& operator<<(std::ostream& stream, Ink ink) {
    static const char* const codes[] = {"\x1B[0m", "\x1B[32m", "\x1B[33m", "\x1B[31m"};
    return ShowsInk(stream) == 0 ? stream : stream << codes[static_cast<int>(ink)];
}

}  // namespace tessaryn
