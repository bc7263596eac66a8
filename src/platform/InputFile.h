// A file that is read piece by piece.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "platform/Fingerprint.h"

namespace tessaryn {

class InputFile {
  public:
    // Never waits: only regular files are opened.
    explicit InputFile(const std::string& path);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;
    ~InputFile();

    bool Good() const { return number_ >= 0; }  // false: no regular file, or it can't be opened
    std::uint64_t Size() const { return size_; }
    // Puts up to `count` of the next bytes to a place and gives how many; 0 at the end, or where
    // the file can't be read.
    std::size_t Read(char* to, std::size_t count);
    Fingerprint Print() const { return print_.Value(); }  // of what was read

  private:
    int number_ = -1;
    std::uint64_t size_ = 0;
    FingerprintTaker print_;
};

}  // namespace tessaryn
