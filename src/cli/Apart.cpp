#include "cli/Apart.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <new>

namespace tessaryn {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t LongestAnswer = 1U << 22;
constexpr rlim_t Memory = 1U << 30;  // beyond what the program has when the work begins
// Exit statuses of a child. None is 0: only work that came to its own end counts.
constexpr int Said = 10;
constexpr int NoMemory = 11;
constexpr int Unexpected = 12;

struct Child {
    std::size_t piece;
    pid_t process;
    int pipe;
    Clock::time_point start;
    bool timedOut = false;
};

// --- in the child

template <class Resource>
void Limit(Resource resource, rlim_t most) {
    rlimit limit{};
    if (getrlimit(resource, &limit) != 0) return;
    limit.rlim_max = std::min(limit.rlim_max, most);
    limit.rlim_cur = std::min(limit.rlim_cur, most);
    setrlimit(resource, &limit);
}

void LimitMemory() {
#if !defined(__SANITIZE_ADDRESS__)  // which reserves far more than it uses
    std::ifstream sizes("/proc/self/statm");
    rlim_t pages = 0;
    if (sizes >> pages) Limit(RLIMIT_AS, pages * static_cast<rlim_t>(getpagesize()) + Memory);
#endif
}

bool WriteAll(int pipe, const std::string& text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const ssize_t count = write(pipe, text.data() + at, text.size() - at);
        if (count < 0 && errno != EINTR) return false;
        at += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    }
    return true;
}

[[noreturn]] void RunChild(const ApartRequest& request, std::size_t piece, int pipe) {
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int stream : {0, 1, 2}) dup2(nowhere, stream);
    std::signal(SIGXFSZ, SIG_IGN);
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_FSIZE, 0);
    const auto seconds = std::chrono::ceil<std::chrono::seconds>(request.time).count();
    Limit(RLIMIT_CPU, static_cast<rlim_t>(seconds) + 1);
    LimitMemory();
    try {
        _exit(WriteAll(pipe, request.work(piece)) ? Said : Unexpected);
    } catch (const std::bad_alloc&) {
        _exit(NoMemory);
    } catch (...) {  // whatever it is, it must not go on as a second parent
        _exit(Unexpected);
    }
}

// --- in the parent

class Pool {
  public:
    explicit Pool(const ApartRequest& request) : request_(request), answers_(request.count) {}

    std::vector<Answered> Run() {
        while (next_ < request_.count || !children_.empty()) {
            while (next_ < request_.count &&
                   children_.size() < static_cast<std::size_t>(request_.jobs)) {
                if (!Start()) break;
            }
            Wait();
            Tick();
        }
        return std::move(answers_);
    }

  private:
    // False if the system has no process; the piece then waits for one, if that is to be hoped for.
    bool Start() {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) return GiveUp();
        const pid_t process = fork();
        if (process == 0) {
            close(ends[0]);
            RunChild(request_, next_, ends[1]);
        }
        close(ends[1]);
        if (process < 0) {
            close(ends[0]);
            return GiveUp();
        }
        children_.push_back({next_++, process, ends[0], Clock::now()});
        return true;
    }

    bool GiveUp() {
        if (!children_.empty()) return false;
        answers_[next_++].ending = Ending::NotStarted;
        return true;
    }

    // Until something comes from a child, or one has had its time, or the next tick is due.
    void Wait() {
        auto until = lastTick_ + std::chrono::seconds(1);
        std::vector<pollfd> pipes;
        for (const Child& child : children_) {
            pipes.push_back({child.pipe, POLLIN, 0});
            until = std::min(until, child.start + request_.time);
        }
        const auto rest = std::chrono::ceil<std::chrono::milliseconds>(until - Clock::now());
        poll(pipes.data(), pipes.size(), static_cast<int>(std::max<long long>(rest.count(), 0)));
        for (std::size_t i = pipes.size(); i-- > 0;) {
            Child& child = children_[i];
            if (pipes[i].revents != 0 && !TakeFrom(child)) {
                children_.erase(children_.begin() + static_cast<std::ptrdiff_t>(i));
            } else if (!child.timedOut && Clock::now() >= child.start + request_.time) {
                child.timedOut = true;
                kill(child.process, SIGKILL);
            }
        }
    }

    // False if the child has come to its end.
    bool TakeFrom(const Child& child) {
        char block[65536];
        const ssize_t count = read(child.pipe, block, sizeof block);
        if (count < 0 && errno == EINTR) return true;
        std::string& text = answers_[child.piece].text;
        if (count > 0) {
            text.append(block, static_cast<std::size_t>(count));
            if (text.size() <= LongestAnswer) return true;
            kill(child.process, SIGKILL);
        }
        End(child);
        return false;
    }

    void End(const Child& child) {
        close(child.pipe);
        int status = 0;
        while (waitpid(child.process, &status, 0) < 0 && errno == EINTR) {
        }
        Answered& answer = answers_[child.piece];
        if (WIFEXITED(status) && WEXITSTATUS(status) == Said) {
            answer.ending = Ending::Done;
        } else if (child.timedOut || (WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU)) {
            answer.ending = Ending::TimedOut;
        } else if (WIFEXITED(status) && WEXITSTATUS(status) == NoMemory) {
            answer.ending = Ending::OutOfMemory;
        }
        if (answer.ending != Ending::Done) answer.text.clear();
    }

    void Tick() {
        if (Clock::now() < lastTick_ + std::chrono::seconds(1)) return;
        lastTick_ = Clock::now();
        const auto longest = std::min_element(
            children_.begin(), children_.end(),
            [](const Child& one, const Child& other) { return one.start < other.start; });
        if (!request_.tick || longest == children_.end()) return;
        const auto time = std::chrono::floor<std::chrono::seconds>(lastTick_ - longest->start);
        request_.tick(next_ - children_.size(), longest->piece, time.count());
    }

    const ApartRequest& request_;
    std::vector<Answered> answers_;
    std::vector<Child> children_;
    std::size_t next_ = 0;
    Clock::time_point lastTick_ = Clock::now();
};

}  // namespace

std::vector<Answered> DoApart(const ApartRequest& request) {
    return Pool(request).Run();
}

void OpenNoMoreFiles() {
#if !defined(__SANITIZE_ADDRESS__)  // which looks at types of objects through pipes of its own
    Limit(RLIMIT_NOFILE, 0);
#endif
}

}  // namespace tessaryn
