// Text from outside: UTF-8, or else one byte a character.
#pragma once

#include <string>

namespace tessaryn {

// The character that a byte stands for in Windows-1252.
char32_t FromWindows1252(unsigned char byte);

// Length in bytes of that character in UTF-8.
int Windows1252Length(unsigned char byte);

// The text as UTF-8: as it stands if it is valid, otherwise read as Windows-1252.
std::string ToUtf8(std::string text);

}  // namespace tessaryn
