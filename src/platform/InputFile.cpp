#include "platform/InputFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace tessaryn {

InputFile::InputFile(const std::string& path)
    : number_(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY)) {
    struct stat info {};
    if (number_ >= 0 && fstat(number_, &info) == 0 && S_ISREG(info.st_mode)) {
        size_ = static_cast<std::uint64_t>(info.st_size);
    } else if (number_ >= 0) {
        close(number_);
        number_ = -1;
    }
}

InputFile::~InputFile() {
    if (number_ >= 0) close(number_);
}

std::size_t InputFile::Read(char* to, std::size_t count) {
    ssize_t got = 0;
    do {
        got = read(number_, to, count);
    } while (got < 0 && errno == EINTR);
    const auto bytes = static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    print_.Add({to, bytes});
    return bytes;
}

}  // namespace tessaryn
