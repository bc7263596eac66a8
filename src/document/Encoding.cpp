#include "document/Encoding.h"

#include <array>
#include <cstdint>

namespace tessaryn {
namespace {

// Windows-1252, bytes 0x80 to 0x9F; the five bytes without a character keep their number.
constexpr std::array<std::uint16_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned CodePoint(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? UpperControls[byte - 0x80U] : byte;
}

void AppendUtf8(std::string& out, unsigned code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

// Length of the valid UTF-8 sequence at `at` (Unicode 15, table 3-7); 0 if there is none.
std::size_t SequenceLength(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) {
        return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0U;
    };
    const auto continues = [&](std::size_t i) { return (byte(i) & 0xC0U) == 0x80U; };
    const unsigned lead = byte(0);
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return continues(1) ? 2 : 0;
    if (lead >= 0xE0 && lead < 0xF0) {
        const bool tooSmall = lead == 0xE0 && byte(1) < 0xA0;
        const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
        return continues(1) && continues(2) && !tooSmall && !surrogate ? 3 : 0;
    }
    if (lead >= 0xF0 && lead < 0xF5) {
        const bool tooSmall = lead == 0xF0 && byte(1) < 0x90;
        const bool tooLarge = lead == 0xF4 && byte(1) >= 0x90;
        return continues(1) && continues(2) && continues(3) && !tooSmall && !tooLarge ? 4 : 0;
    }
    return 0;
}

}  // namespace

bool IsUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = SequenceLength(text, at);
        if (length == 0) return false;
        at += length;
    }
    return true;
}

int Windows1252Length(unsigned char byte) {
    const unsigned code = CodePoint(byte);
    return code < 0x80 ? 1 : code < 0x800 ? 2 : 3;
}

std::string ToUtf8(std::string text) {
    if (IsUtf8(text)) return text;
    std::string converted;
    converted.reserve(text.size() * 2);
    for (const char c : text) AppendUtf8(converted, CodePoint(static_cast<unsigned char>(c)));
    return converted;
}

}  // namespace tessaryn
