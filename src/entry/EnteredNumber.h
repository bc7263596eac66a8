// Reads a number that the user has typed.
#pragma once

#include <optional>
#include <string_view>

namespace tessaryn {

// The longest number at the head of the text, leading blanks skipped, rounded to the nearest whole
// number, a half to the even neighbour; 0 if there is none. Nothing if it does not fit 16 bits.
std::optional<int> EnteredNumber(std::string_view text);

}  // namespace tessaryn
