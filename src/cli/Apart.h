// Work on things that nobody trusts. Each piece is done in a process of its own, with limits, so
// that one that crashes, hangs or wants all memory ends itself and nothing else.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tessaryn {

enum class Ending {
    Done,
    TimedOut,
    OutOfMemory,
    Broken,      // a crash, an exception, or too long an answer
    NotStarted,  // the system has no process for it
};

struct Answered {
    Ending ending = Ending::Broken;
    std::string text;  // what the work gave, if Done
};

struct ApartRequest {
    std::size_t count = 0;                         // pieces of work
    std::function<std::string(std::size_t)> work;  // one of them, in a process of its own
    int jobs = 1;                                  // processes at a time
    std::chrono::milliseconds time{10'000};        // for each
    // Called about each second: how many are done, which has been under way for longest, and for
    // how many seconds.
    std::function<void(std::size_t done, std::size_t longest, long long seconds)> tick;
};

// One answer for each piece. The work may write no file. What it prints is lost.
std::vector<Answered> DoApart(const ApartRequest& request);

// Within a piece of work: from now on no file can be opened.
void OpenNoMoreFiles();

}  // namespace tessaryn
