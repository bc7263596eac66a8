// The one decoder and encoder of UTF-8. Valid is what Unicode calls well-formed: no overlong
// sequence, no surrogate, nothing above U+10FFFF, nothing cut short. A byte that belongs to no
// valid sequence counts as one character of its own.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

struct Utf8Char {
    char32_t code = 0;
    int length = 0;  // bytes; 0: no valid sequence begins there
};

// The character whose valid sequence begins at a 0-based byte.
Utf8Char DecodeAt(std::string_view text, std::size_t at);

// The bytes of the UTF-8 sequence that begins at a position; 1 where none does, 0 at the end.
int SequenceLength(std::string_view text, int position);

// Where the stretch of ASCII that begins at a 0-based byte ends; `from` itself if there is none.
std::size_t AsciiEnd(std::string_view text, std::size_t from);

// Characters of the text; each byte outside a valid sequence counts as one.
int CharacterCount(std::string_view text);

bool IsUtf8(std::string_view text);

inline constexpr char32_t ReplacementCharacter = 0xFFFD;

// What is no character, a surrogate say, becomes the replacement character.
void AppendUtf8(std::string& text, char32_t character);

}  // namespace tessaryn
