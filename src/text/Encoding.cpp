#include "text/Encoding.h"

#include <array>

#include "text/Utf8.h"

namespace tessaryn {
namespace {

// Windows-1252, bytes 0x80 to 0x9F; the five bytes without a character keep their number.
constexpr std::array<char32_t, 32> UpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

}  // namespace

char32_t FromWindows1252(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? UpperControls[byte - 0x80U] : byte;
}

int Windows1252Length(unsigned char byte) {
    std::string sequence;
    AppendUtf8(sequence, FromWindows1252(byte));
    return static_cast<int>(sequence.size());
}

std::string ToUtf8(std::string text) {
    if (IsUtf8(text)) return text;
    std::string converted;
    converted.reserve(text.size() * 2);
    for (const char c : text) AppendUtf8(converted, FromWindows1252(static_cast<unsigned char>(c)));
    return converted;
}

}  // namespace tessaryn
