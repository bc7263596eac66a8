// Words from outside, as they may stand in a line of a report.
#pragma once

#include <string>

namespace tessaryn {

// The text as UTF-8 without anything that would move the rest of the line about or hide in it:
// control characters are blanks, marks that are not seen (directions, joiners) are "?".
std::string OnOneLine(const std::string& text);

// The same, cut off behind so many characters.
std::string Shortened(const std::string& text, int characters);

}  // namespace tessaryn
