// Writing a file so that neither a crash nor a full disk harms the old one.
//
// The new content goes to a temporary file beside the old one, which it then replaces. Its name is
// ".tessaryn-", 32 hexadecimal digits for the running system, "-" and 8 more at random; its writer
// holds a lock on it for as long as it has that name. So whoever saves next in the directory can
// tell what a crashed writer left behind and remove it.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <random>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/Files.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

// A file descriptor, closed at the end of its scope.
class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (Good()) close(number_);
    }
    int Number() const { return number_; }
    bool Good() const { return number_ >= 0; }

  private:
    int number_;
};

// --- temporary files and what is left of them

constexpr std::string_view Prefix = ".tessaryn-";
constexpr std::size_t SystemDigits = 32;
constexpr std::size_t RandomDigits = 8;

constexpr std::string_view UnknownSystem = "00000000000000000000000000000000";

// Each start of each machine has another; UnknownSystem where the system tells none.
const std::string& RunningSystem() {
    static const std::string system = [] {
        std::ifstream source("/proc/sys/kernel/random/boot_id");
        std::string digits;
        std::getline(source, digits);
        std::erase(digits, '-');
        return digits.size() == SystemDigits ? digits : std::string(UnknownSystem);
    }();
    return system;
}

fs::path TemporaryName(const fs::path& directory) {
    std::array<char, RandomDigits + 1> random{};
    std::snprintf(random.data(), random.size(), "%08x", std::random_device{}());
    return directory / (std::string(Prefix) + RunningSystem() + '-' + random.data());
}

// The digits for the system that the name was made on; "" if it is no temporary file's name.
std::string_view SystemOf(std::string_view name) {
    const auto areDigits = [](std::string_view text) {
        return text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
    };
    if (name.size() != Prefix.size() + SystemDigits + 1 + RandomDigits) return "";
    const std::string_view system = name.substr(Prefix.size(), SystemDigits);
    const std::string_view random = name.substr(name.size() - RandomDigits);
    const bool fits = name.starts_with(Prefix) && areDigits(system) && areDigits(random) &&
                      name[name.size() - RandomDigits - 1] == '-';
    return fits ? system : "";
}

// No writer of this system lives that holds no lock. The locks of another machine that shares the
// directory may be out of sight: there only time tells.
bool WriterIsDead(const fs::path& file, std::string_view system) {
    constexpr std::time_t LongAgo = 24 * 60 * 60;  // seconds
    const Descriptor handle(open(file.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    struct stat info {};
    if (!handle.Good() || fstat(handle.Number(), &info) != 0 || !S_ISREG(info.st_mode)) {
        return false;
    }
    const bool locked = flock(handle.Number(), LOCK_EX | LOCK_NB) == 0;
    if (!locked && errno == EWOULDBLOCK) return false;
    if (locked && system == RunningSystem() && system != UnknownSystem) return true;
    return std::time(nullptr) - info.st_mtime > LongAgo;
}

void RemoveLeftovers(const fs::path& directory) {
    std::error_code error;
    fs::directory_iterator entry(directory, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string name = entry->path().filename().string();
        const std::string_view system = SystemOf(name);
        if (!system.empty() && WriterIsDead(entry->path(), system)) unlink(entry->path().c_str());
    }
}

// --- the file that is replaced

// Where the path leads in the end, whether or not there is a file. Nothing if links go in a circle.
std::optional<fs::path> BehindLinks(fs::path path) {
    constexpr int MostLinks = 40;  // the system itself follows no more
    std::error_code error;
    for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)); ++links) {
        const fs::path next = fs::read_symlink(path, error);
        if (links == MostLinks || error) return std::nullopt;
        path = path.parent_path() / next;
    }
    return path;
}

fs::path DirectoryOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

// True if the new file has the old one's access list, or has none where the old one has none: in
// some directories every new file is given one.
#ifdef __EMSCRIPTEN__
bool KeepAccessList(int, const fs::path&) {
    return true;  // its system has no access lists
}
#else
bool KeepAccessList(int file, const fs::path& old) {
    constexpr const char* AccessList = "system.posix_acl_access";
    std::array<char, 65536> list{};  // no attribute is longer
    const ssize_t size = getxattr(old.c_str(), AccessList, list.data(), list.size());
    if (size >= 0) {
        return fsetxattr(file, AccessList, list.data(), static_cast<std::size_t>(size), 0) == 0;
    }
    fremovexattr(file, AccessList);
    return true;
}
#endif

// Owner, group, access list and mode of the old file, as far as the system lets them be kept. A
// group that is not the old one gets no more than everybody has.
bool KeepAttributes(int file, const fs::path& old, const struct stat& info) {
    constexpr auto SameUser = static_cast<uid_t>(-1);
    constexpr auto SameGroup = static_cast<gid_t>(-1);
    mode_t mode = info.st_mode & 07777U;
    if (fchown(file, info.st_uid, SameGroup) != 0) mode &= 0777U;
    const bool groupKept = fchown(file, SameUser, info.st_gid) == 0;
    if (!KeepAccessList(file, old) || !groupKept) mode = (mode & 0707U) | (mode & 07U) << 3U;
    return fchmod(file, mode) == 0;
}

// --- writing

bool WriteAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) return false;
        if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

// Makes the rename itself survive a crash. A system that can't flush a directory does no harm.
void FlushDirectory(const fs::path& directory) {
    const Descriptor handle(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.Good()) fsync(handle.Number());
}

// old: nullptr if the target is a new file, which gets what the system gives new files.
// 0, or the number of the error, with nothing left behind.
int WriteAndRename(const fs::path& target, const struct stat* old, std::string_view bytes) {
    const fs::path temporary = TemporaryName(DirectoryOf(target));
    const Descriptor file(open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
                               old == nullptr ? 0666 : 0600));
    if (!file.Good()) return errno;
    flock(file.Number(), LOCK_EX | LOCK_NB);
    if (WriteAll(file.Number(), bytes) &&
        (old == nullptr || KeepAttributes(file.Number(), target, *old)) &&
        fsync(file.Number()) == 0 && std::rename(temporary.c_str(), target.c_str()) == 0) {
        return 0;
    }
    const int error = errno;
    unlink(temporary.c_str());
    return error;
}

std::string InQuotes(const fs::path& path) {
    return '"' + path.string() + '"';
}

// An error on writing, as one sentence for a person.
std::string Reason(int error, const fs::path& target) {
    const std::string directory = InQuotes(DirectoryOf(target));
    switch (error) {
        case EACCES:
            return "You may not write to the directory " + directory + ".";
        case EPERM:
            return "The system does not let " + InQuotes(target) + " be replaced.";
        case ENOENT:
            return "There is no directory " + directory + ".";
        case ENOTDIR:
            return directory + " is no directory.";
        case ENAMETOOLONG:
            return "The name is too long.";
        case ENOSPC:
            return "The disk is full.";
        case EDQUOT:
            return "Your share of the disk is used up.";
        case EFBIG:
            return "The file would be larger than the system allows.";
        case EROFS:
            return "The disk with " + directory + " can only be read.";
        default:
            return std::string("The system reports: ") + std::strerror(error) + ".";
    }
}

}  // namespace

void RemoveLeftoversBeside(const std::string& path) {
    if (const std::optional<fs::path> file = BehindLinks(path)) {
        RemoveLeftovers(DirectoryOf(*file));
    }
}

std::string ReplaceFile(const std::string& path, const std::string& bytes) {
    if (path.empty()) return "The file has no name.";
    const std::optional<fs::path> target = BehindLinks(path);
    if (!target) return InQuotes(path) + " is a link that leads in a circle.";
    struct stat info {};
    const bool exists = stat(target->c_str(), &info) == 0;
    if (exists && S_ISDIR(info.st_mode)) return InQuotes(*target) + " is a directory.";
    if (exists && !S_ISREG(info.st_mode)) return InQuotes(*target) + " is no ordinary file.";
    if (exists && faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) != 0) {
        return errno == EACCES ? "You may not write to " + InQuotes(*target) + "."
                               : Reason(errno, *target);
    }
    RemoveLeftovers(DirectoryOf(*target));
    // Should anyone have taken the temporary file away, or its name, it is written once more; and
    // where a signal came between.
    int error = EEXIST;
    const auto mayPass = [&] { return error == EEXIST || error == ENOENT || error == EINTR; };
    for (int tries = 0; tries < 3 && mayPass(); ++tries) {
        error = WriteAndRename(*target, exists ? &info : nullptr, bytes);
    }
    if (error != 0) return Reason(error, *target);
    FlushDirectory(DirectoryOf(*target));
    return "";
}

}  // namespace tessaryn
