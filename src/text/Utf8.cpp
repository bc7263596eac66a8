#include "text/Utf8.h"

#include <cstdint>
#include <cstring>

namespace tessaryn {

namespace {

unsigned ByteAt(std::string_view text, std::size_t at) {
    return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
}

bool IsCharacter(char32_t code) {
    const bool surrogate = code >= 0xD800 && code < 0xE000;
    return code <= 0x10FFFF && !surrogate;
}

// The bytes that a character takes.
int LengthOf(char32_t code) {
    return code < 0x80 ? 1 : code < 0x800 ? 2 : code < 0x10000 ? 3 : 4;
}

int PromisedLength(unsigned lead) {
    if (lead < 0x80) return 1;
    if (lead < 0xC0 || lead > 0xF7) return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
}

}  // namespace

Utf8Char DecodeAt(std::string_view text, std::size_t at) {
    if (at >= text.size()) return {};
    const unsigned lead = ByteAt(text, at);
    const int length = PromisedLength(lead);
    if (length < 2) return {lead, length};
    char32_t code = lead & (0x7FU >> length);
    for (int i = 1; i < length; ++i) {
        const unsigned next = ByteAt(text, at + static_cast<std::size_t>(i));
        if ((next & 0xC0U) != 0x80U) return {};
        code = code << 6U | (next & 0x3FU);
    }
    if (!IsCharacter(code) || LengthOf(code) != length) return {};
    return {code, length};
}

int SequenceLength(std::string_view text, int position) {
    if (position < 0 || position >= static_cast<int>(text.size())) return 0;
    const int length = DecodeAt(text, static_cast<std::size_t>(position)).length;
    return length == 0 ? 1 : length;
}

std::size_t AsciiEnd(std::string_view text, std::size_t from) {
    std::uint64_t bytes = 0;
    for (; from + sizeof bytes <= text.size(); from += sizeof bytes) {
        std::memcpy(&bytes, text.data() + from, sizeof bytes);
        if ((bytes & 0x8080808080808080U) != 0) break;
    }
    while (from < text.size() && ByteAt(text, from) < 0x80) ++from;
    return from;
}

int CharacterCount(std::string_view text) {
    int count = 0;
    for (std::size_t at = 0; at < text.size(); ++count) {
        const std::size_t ascii = AsciiEnd(text, at);
        count += static_cast<int>(ascii - at);
        if (ascii == text.size()) break;
        at = ascii + static_cast<std::size_t>(SequenceLength(text, static_cast<int>(ascii)));
    }
    return count;
}

bool IsUtf8(std::string_view text) {
    for (std::size_t at = AsciiEnd(text, 0); at < text.size(); at = AsciiEnd(text, at)) {
        const int length = DecodeAt(text, at).length;
        if (length == 0) return false;
        at += static_cast<std::size_t>(length);
    }
    return true;
}

void AppendUtf8(std::string& text, char32_t character) {
    const char32_t code = IsCharacter(character) ? character : ReplacementCharacter;
    constexpr char32_t leads[] = {0, 0, 0xC0, 0xE0, 0xF0};
    const int length = LengthOf(code);
    int shift = 6 * (length - 1);
    text += static_cast<char>(leads[length] | (code >> shift));
    while (shift > 0) {
        shift -= 6;
        text += static_cast<char>(0x80 | ((code >> shift) & 0x3F));
    }
}

}  // namespace tessaryn
