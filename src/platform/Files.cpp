#include "platform/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

// A file descriptor, closed at the end of its scope.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { Close(); }
    int Number() const { return number_; }
    bool Close() {
        const bool good = number_ < 0 || close(number_) == 0;
        number_ = -1;
        return good;
    }

  private:
    int number_;
};

bool WriteAll(int descriptor, const std::string& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t written = write(descriptor, bytes.data() + done, bytes.size() - done);
        if (written < 0) return false;
        done += static_cast<std::size_t>(written);
    }
    return true;
}

// What the file behind the name is to be allowed; a new one gets what the system gives new files.
mode_t WantedMode(const std::string& path) {
    struct stat info {};
    if (stat(path.c_str(), &info) == 0) return info.st_mode & 07777U;
    const mode_t mask = umask(0);
    umask(mask);
    return 0666U & ~mask;
}

bool WriteTemporary(std::string& temporary, const std::string& bytes, mode_t mode) {
    Descriptor file(mkstemp(temporary.data()));
    if (file.Number() < 0) return false;
    const bool good = WriteAll(file.Number(), bytes) && fchmod(file.Number(), mode) == 0 &&
                      fsync(file.Number()) == 0;
    if (file.Close() && good) return true;
    unlink(temporary.c_str());
    return false;
}

// Makes the rename itself survive a crash. A system that can't flush a directory does no harm.
void FlushDirectory(const fs::path& directory) {
    const Descriptor handle(open(directory.c_str(), O_RDONLY | O_DIRECTORY));
    if (handle.Number() >= 0) fsync(handle.Number());
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return std::nullopt;
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (file.bad()) return std::nullopt;
    return bytes;
}

bool ReplaceFile(const std::string& path, const std::string& bytes) {
    if (path.empty()) return false;
    std::error_code error;
    // A link stays a link: the file that it leads to is replaced.
    fs::path target =
        fs::exists(path, error) ? fs::canonical(path, error) : fs::absolute(path, error);
    if (error) return false;
    const bool exists = fs::exists(target, error);
    if (exists && !fs::is_regular_file(target, error)) return false;
    if (exists && access(target.c_str(), W_OK) != 0) return false;
    std::string temporary = (target.parent_path() / ".tessaryn-XXXXXX").string();
    if (!WriteTemporary(temporary, bytes, WantedMode(target.string()))) return false;
    if (std::rename(temporary.c_str(), target.c_str()) != 0) {
        unlink(temporary.c_str());
        return false;
    }
    FlushDirectory(target.parent_path());
    return true;
}

}  // namespace tessaryn
