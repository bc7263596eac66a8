#include "entry/EnteredNumber.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <system_error>

namespace tessaryn {
namespace {

using Limits = std::numeric_limits<short>;

bool StartsNumber(std::string_view text) {
    return !text.empty() && (text.front() == '.' || (text.front() >= '0' && text.front() <= '9'));
}

[[noreturn]] void ThrowTooLarge() {
    throw std::out_of_range("the number does not fit 16 bits");
}

}  // namespace

int EnteredNumber(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    if (!StartsNumber(text)) return 0;  // no "inf" and "nan"
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) ThrowTooLarge();
    value = std::nearbyint(negative ? -value : value);
    if (value < Limits::min() || value > Limits::max()) ThrowTooLarge();
    return static_cast<int>(value);
}

}  // namespace tessaryn
