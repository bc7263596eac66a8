#include "entry/EnteredNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace tessaryn {
namespace {

using Limits = std::numeric_limits<short>;

// How far the text goes on with digits from there.
std::size_t BehindDigits(std::string_view text, std::size_t from) {
    return std::min(text.find_first_not_of("0123456789", from), text.size());
}

// Digits, fraction and exponent at the head of the text, as far as they make a number.
std::string_view NumberAtHead(std::string_view text) {
    std::size_t end = BehindDigits(text, 0);
    if (text.substr(end).starts_with('.')) end = BehindDigits(text, end + 1);
    if (text.substr(end).starts_with('e') || text.substr(end).starts_with('E')) {
        const std::string_view exponent = text.substr(end + 1);
        const bool hasSign = exponent.starts_with('+') || exponent.starts_with('-');
        const std::size_t digits = BehindDigits(exponent, hasSign ? 1 : 0);
        if (digits > (hasSign ? 1 : 0)) end += 1 + digits;
    }
    return text.substr(0, end);
}

// The user's language has no say in how the number is read. 0 if it is none, the largest double if
// it is beyond that.
double ReadNumber(std::string_view text) {
    std::istringstream source{std::string(text)};
    source.imbue(std::locale::classic());
    double value = 0;
    source >> value;
    return value;
}

}  // namespace

std::optional<int> EnteredNumber(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    const double size = ReadNumber(NumberAtHead(text));
    const double value = std::nearbyint(negative ? -size : size);
    if (value < Limits::min() || value > Limits::max()) return std::nullopt;
    return static_cast<int>(value);
}

}  // namespace tessaryn
