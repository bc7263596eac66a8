#include "MemoryFiles.h"

#include <deque>

#include "platform/Files.h"
#include "platform/InputFile.h"

namespace tessaryn {
namespace {

struct OpenFile {
    const std::string& content;
    std::size_t at = 0;
};
std::deque<OpenFile> OpenFiles;  // by their numbers; each file is closed before the next is opened

}  // namespace

InputFile::InputFile(const std::string& path) {
    const auto file = MemoryFiles.find(path);
    if (file == MemoryFiles.end()) return;
    number_ = static_cast<int>(OpenFiles.size());
    size_ = file->second.size();
    OpenFiles.push_back({file->second});
}

InputFile::~InputFile() {
    if (Good()) OpenFiles.pop_back();
}

std::size_t InputFile::Read(char* to, std::size_t count) {
    OpenFile& file = OpenFiles[static_cast<std::size_t>(number_)];
    const std::size_t got = file.content.copy(to, count, file.at);
    file.at += got;
    return got;
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
    const auto file = MemoryFiles.find(path);
    if (file == MemoryFiles.end()) return std::nullopt;
    return file->second;
}

std::string ReplaceFile(const std::string& path, const std::string& bytes) {
    if (path.empty()) return "There is no such folder.";
    MemoryFiles[path] = bytes;
    return "";
}

void RemoveLeftoversBeside(const std::string&) {}

std::string UserDirectory(const char*, const std::string&) {
    return "";
}

}  // namespace tessaryn
