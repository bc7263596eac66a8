// For tests that write files.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace tessaryn {

// A directory of the test's own, gone behind it.
class OwnDirectory : public testing::Test {
  protected:
    OwnDirectory() { std::filesystem::create_directories(directory); }
    ~OwnDirectory() override { std::filesystem::remove_all(directory); }
    std::string Path(const std::string& name) const { return (directory / name).string(); }
    void WriteFile(const std::string& name, const std::string& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
    }
    // What a writer on another machine left here when it crashed, the day before yesterday. Its
    // path.
    std::string OldLeftover(const std::string& name = ".tessaryn-" + std::string(32, 'f') +
                                                      "-01234567") const {
        WriteFile(name, "half");
        const auto now = std::filesystem::file_time_type::clock::now();
        std::filesystem::last_write_time(Path(name), now - std::chrono::hours(48));
        return Path(name);
    }
    std::set<std::string> Names() const {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(directory)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }
    std::filesystem::path directory =
        std::filesystem::temp_directory_path() /
        ("tessaryn ü " + std::to_string(::getpid()) + "-" +
         testing::UnitTest::GetInstance()->current_test_info()->name());
};

}  // namespace tessaryn
