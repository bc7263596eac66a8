#include "Faults.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

struct Fault {
    std::array<char, PATH_MAX> directory{};
    int call = 0;
    int effect = 0;
    std::atomic<int> calls = 0;
};
Fault TheFault;

// From the environment of a program that it is preloaded into.
struct Preloaded {
    Preloaded() {
        const char* wanted = std::getenv("TESSARYN_FAULT");
        if (wanted == nullptr) return;
        const std::string text = wanted;
        const auto effect = text.rfind(':');
        const auto call = text.rfind(':', effect - 1);
        tessaryn::InjectFault(text.substr(0, call).c_str(), std::atoi(text.c_str() + call + 1),
                              std::atoi(text.c_str() + effect + 1));
    }
};
const Preloaded Now;

bool IsBelow(const char* path) {
    const std::size_t length = std::strlen(TheFault.directory.data());
    return std::strncmp(path, TheFault.directory.data(), length) == 0;
}

// The effect of this call on a file; 0 for none.
int EffectOn(const char* path) {
    if (TheFault.call == 0 || path == nullptr || !IsBelow(path)) return 0;
    if (++TheFault.calls != TheFault.call) return 0;
    if (TheFault.effect == tessaryn::Killed) raise(SIGKILL);
    return TheFault.effect;
}

int EffectOn(int file) {
    if (TheFault.call == 0) return 0;
    std::array<char, PATH_MAX> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const bool known = readlink(link.c_str(), path.data(), path.size() - 1) > 0;
    return EffectOn(known ? path.data() : nullptr);
}

template <class Call>
Call* Next(const char* name) {
    return reinterpret_cast<Call*>(dlsym(RTLD_NEXT, name));
}

// Fails as told, or does the call itself.
template <class Result, class... Parameters, class File>
Result Do(const char* name, Result failed, File file, Parameters... parameters) {
    const int effect = EffectOn(file);
    if (effect <= 0) return Next<Result(Parameters...)>(name)(parameters...);
    errno = effect;
    return failed;
}

}  // namespace

extern "C" {

void InjectFault(const char* directory, int call, int effect) {
    std::snprintf(TheFault.directory.data(), TheFault.directory.size(), "%s", directory);
    TheFault.call = call;
    TheFault.effect = effect;
    TheFault.calls = 0;
}

int CallsSoFar() {
    return TheFault.calls;
}

// The names of parameters are the system's own business.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)

// The mode may be missing where no file is made.
#define OPEN(name)                                          \
    int name(const char* path, int flags, ...) {            \
        va_list rest;                                       \
        va_start(rest, flags);                              \
        const mode_t mode = va_arg(rest, mode_t);           \
        va_end(rest);                                       \
        return Do<int>(#name, -1, path, path, flags, mode); \
    }
OPEN(open)
OPEN(open64)

ssize_t write(int file, const void* bytes, size_t count) {
    const int effect = EffectOn(file);
    const size_t most = effect == tessaryn::ShortWrite ? (count + 1) / 2 : count;
    if (effect <= 0) return Next<ssize_t(int, const void*, size_t)>("write")(file, bytes, most);
    errno = effect;
    return -1;
}

int fsync(int file) {
    return Do("fsync", -1, file, file);
}
int fchmod(int file, mode_t mode) {
    return Do("fchmod", -1, file, file, mode);
}
int fchown(int file, uid_t owner, gid_t group) {
    return Do("fchown", -1, file, file, owner, group);
}
int rename(const char* from, const char* to) {
    return Do("rename", -1, from, from, to);
}
// What it fails to close is closed all the same.
int close(int file) {
    const int effect = EffectOn(file);
    const int result = Next<int(int)>("close")(file);
    if (effect <= 0) return result;
    errno = effect;
    return -1;
}

// NOLINTEND(readability-inconsistent-declaration-parameter-name)
}  // extern "C"
