// Blanks round a text.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

// The text without the blanks at its ends. TABs and line breaks are no blanks here.
inline std::string Trim(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return "";
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace tessaryn
