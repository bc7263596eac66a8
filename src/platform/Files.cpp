#include "platform/Files.h"

#include <cstdlib>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tessaryn {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) return std::nullopt;
    return bytes;
}

std::string UserDirectory(const char* variable, const std::string& belowHome) {
    std::string given = Environment(variable);
    if (given.starts_with('/')) return given;
    const std::string home = Environment("HOME");
    return home.empty() ? "" : home + belowHome;
}

}  // namespace tessaryn
