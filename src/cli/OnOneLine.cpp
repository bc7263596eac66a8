#include "cli/OnOneLine.h"

#include "text/Encoding.h"
#include "text/Utf8.h"

namespace tessaryn {

namespace {

bool IsControl(char32_t character) {
    return character < U' ' || (character >= 0x7F && character < 0xA0);
}

bool IsUnseen(char32_t character) {
    return character == 0xAD || character == 0x061C || character == 0xFEFF ||
           (character >= 0x200B && character <= 0x200F) ||
           (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2060 && character <= 0x206F);
}

}  // namespace

std::string OnOneLine(const std::string& text) {
    const std::string whole = ToUtf8(text);
    std::string line;
    for (std::size_t at = 0; at < whole.size();) {
        const Utf8Char next = DecodeAt(whole, at);
        const auto length = static_cast<std::size_t>(next.length);
        if (IsControl(next.code)) {
            line += ' ';
        } else if (IsUnseen(next.code)) {
            line += '?';
        } else {
            line.append(whole, at, length);
        }
        at += length;
    }
    return line;
}

std::string Shortened(const std::string& text, int characters) {
    std::string line = OnOneLine(text);
    if (CharacterCount(line) <= characters) return line;
    int end = 0;
    for (int i = 1; i < characters; ++i) end += SequenceLength(line, end);
    return line.substr(0, static_cast<std::size_t>(end)) + "…";
}

}  // namespace tessaryn
