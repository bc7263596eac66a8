// What the colour of a name tells, in words.
#pragma once

#include <optional>
#include <string>

namespace tessaryn {

struct NameStatus {
    std::string words;  // a sentence
    int start;          // where the name stands in the display, 0-based
    int end;
};

// Of the coloured name at a place of the display, 0-based; nothing if there is none.
std::optional<NameStatus> NameStatusAt(int place);

}  // namespace tessaryn
