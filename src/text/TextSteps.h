// Where characters begin and end in a text of UTF-8 with CR LF as line end.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

// The position, or the one ahead of or behind it that is not inside a UTF-8 sequence.
int CharStart(std::string_view text, int position);
int CharEnd(std::string_view text, int position);

// Start and end of the step that the byte at a position belongs to: a character, or CR LF.
int StepStart(std::string_view text, int position);
int StepEnd(std::string_view text, int position);

// Every lone CR and lone LF made a CR LF.
std::string WithCrLf(std::string_view text);

}  // namespace tessaryn
