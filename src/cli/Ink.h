// Colours for a person at a terminal.
#pragma once

#include <iosfwd>

namespace tessaryn {

enum class Ink { Plain, Good, Doubtful, Bad };

// From now on a stream shows inks. Others drop them, so that files and pipes hold words only.
void UseColours(std::ostream& stream);

// What is written from here on has that ink.
std::ostream& operator<<(std::ostream& stream, Ink ink);

}  // namespace tessaryn
