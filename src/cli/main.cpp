#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "cli/CommandLine.h"
#include "cli/Ink.h"

namespace {

// Whatever could not be caught elsewhere, also ahead of main, where the forms are made.
[[noreturn]] void EndRefused() {
    std::cerr << "tessaryn-cli: the program can't go on\n";
    std::_Exit(1);
}

struct LastResort {
    LastResort() { std::set_terminate(EndRefused); }
};
const LastResort Ready [[gnu::init_priority(101)]];

// Whether a person at a terminal reads what goes there, and wants colours.
bool ShowsColours(int stream) {
    const char* refused = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    return isatty(stream) != 0 && (refused == nullptr || *refused == '\0') && terminal != nullptr &&
           *terminal != '\0' && std::string(terminal) != "dumb";
}

}  // namespace

int main(int argc, char** argv) {
    // What can't be written is reported, and does not end the process.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::ios::sync_with_stdio(false);
    if (ShowsColours(STDOUT_FILENO)) tessaryn::UseColours(std::cout);
    if (ShowsColours(STDERR_FILENO)) tessaryn::UseColours(std::cerr);
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        const int status = tessaryn::RunCommandLine(arguments, {std::cin, std::cout, std::cerr});
        if (std::cout.flush()) return status;
        std::cerr << "the output can't be written\n";
    } catch (const std::exception& fault) {
        std::cerr << "tessaryn-cli: " << fault.what() << '\n';
    }
    return 1;
}
