// Work in processes of its own: whatever it does, the others go on.
#include "cli/Apart.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <new>
#include <stdexcept>
#include <vector>

namespace tessaryn {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr Ending WhenMemoryIsShort = Ending::Done;  // the sanitizer needs it all
constexpr std::chrono::milliseconds TimeForEach{10'000};
#else
constexpr Ending WhenMemoryIsShort = Ending::OutOfMemory;
constexpr std::chrono::milliseconds TimeForEach{2500};
#endif

TEST(Apart, EachPieceEndsForItself) {
    struct Row {
        const char* what;
        std::string (*work)();
        Ending ending;
    };
    const std::vector<Row> rows = {
        {"answers", [] { return std::string(100'000, 'x'); }, Ending::Done},
        {"prints", [] { return std::string(write(1, "!", 1) == 1 ? "x" : ""); }, Ending::Done},
        {"is killed", [] { return std::to_string(raise(SIGKILL)); }, Ending::Broken},
        {"throws", []() -> std::string { throw std::runtime_error("!"); }, Ending::Broken},
        {"leaves", []() -> std::string { _exit(0); }, Ending::Broken},
        {"talks on and on", [] { return std::string(5 << 20, 'x'); }, Ending::Broken},
        {"sleeps", [] { return std::to_string(sleep(100)); }, Ending::TimedOut},
        {"is busy",
         [] {
             while (getpid() != 0) {
             }
             return std::string();
         },
         Ending::TimedOut},
        {"wants memory",
         [] {
             const std::vector<char> much(std::size_t{1300} << 20, 'x');
             return std::string(1, much.back());
         },
         WhenMemoryIsShort},
#ifndef __SANITIZE_ADDRESS__
        {"opens a file",
         [] {
             OpenNoMoreFiles();
             return std::string(std::ifstream("/dev/null").good() ? "" : "x");
         },
         Ending::Done},
#endif
        {"writes a file",
         [] {
             std::ofstream file(testing::TempDir() + "apart");
             return std::string(file << "!" << std::flush ? "" : "x");
         },
         Ending::Done},
    };
    std::string ticks;
    const ApartRequest request = {
        rows.size(), [&](std::size_t i) { return rows[i].work(); }, 3, TimeForEach,
        [&](std::size_t done, std::size_t, long long) { ticks += std::to_string(done) + ' '; }};
    const std::vector<Answered> answers = DoApart(request);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(answers[i].ending, rows[i].ending) << rows[i].what;
        EXPECT_EQ(answers[i].text.substr(0, 1), rows[i].ending == Ending::Done ? "x" : "")
            << rows[i].what;
    }
    EXPECT_EQ(answers[0].text.size(), 100'000U);
    EXPECT_GE(ticks.size(), 4U) << "about one each second";
}

}  // namespace
}  // namespace tessaryn
