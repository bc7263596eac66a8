#include "platform/Files.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tessaryn {

std::optional<std::string> ReadWholeFile(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) return std::nullopt;
    return bytes;
}

}  // namespace tessaryn
