// The digest by which a page says what may run in it.
#pragma once

#include <string>
#include <string_view>

namespace tessaryn {

// SHA-256 of the bytes, in base 64.
std::string Sha256InBase64(std::string_view bytes);

}  // namespace tessaryn
