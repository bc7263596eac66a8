#include "platform/RunningMark.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <array>
#include <cctype>
#include <map>

namespace tessaryn {
namespace {

std::map<std::string, int> Held;  // descriptors by path

}  // namespace

bool HoldMark(const std::string& path) {
    if (Held.contains(path)) return true;
    const int file = open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0) return false;
    if (flock(file, LOCK_EX | LOCK_NB) != 0) {
        close(file);
        return false;
    }
    Held[path] = file;
    return true;
}

void DropMarks() {
    for (const auto& [path, file] : Held) {
        unlink(path.c_str());
        close(file);
    }
    Held.clear();
}

bool MarkIsHeld(const std::string& path) {
    const int file = open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return false;
    const bool held = flock(file, LOCK_EX | LOCK_NB) != 0;
    close(file);
    return held;
}

std::string MachineName() {
    std::array<char, 65> name{};
    if (gethostname(name.data(), name.size() - 1) != 0) return "unknown";
    std::string usable;
    for (const char c : std::string(name.data())) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) usable += c;
    }
    return usable.empty() ? "unknown" : usable;
}

}  // namespace tessaryn
