#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>

#include "cli/CommandLine.h"

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

}  // namespace

int main(int argc, char** argv) {
    // What can't be written is reported, and does not end the process.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    std::ios::sync_with_stdio(false);
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
