// Where characters begin and end in a text of UTF-8 with CR LF as line end. Bytes that are no UTF-8
// count as one character each.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

// The bytes of the UTF-8 sequence that begins at a position; 1 where none does, 0 at the end.
int SequenceLength(std::string_view text, int position);

// The position, or the one ahead of or behind it that is not inside a UTF-8 sequence.
int CharStart(std::string_view text, int position);
int CharEnd(std::string_view text, int position);

// Start and end of the step that the byte at a position belongs to: a character, or CR LF.
int StepStart(std::string_view text, int position);
int StepEnd(std::string_view text, int position);

void AppendUtf8(std::string& text, char32_t character);

// Every lone CR and lone LF made a CR LF.
std::string WithCrLf(std::string_view text);

}  // namespace tessaryn
