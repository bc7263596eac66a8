// Text from outside: UTF-8, or else one byte a character.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

bool IsUtf8(std::string_view text);

// Length in bytes, in UTF-8, of the character that the byte stands for in Windows-1252.
int Windows1252Length(unsigned char byte);

// The text as UTF-8: as it stands if it is valid, otherwise read as Windows-1252.
std::string ToUtf8(std::string text);

}  // namespace tessaryn
