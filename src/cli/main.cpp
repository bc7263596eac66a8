#include <iostream>

#include "cli/CommandLine.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    const int status = tessaryn::RunCommandLine(arguments, {std::cin, std::cout, std::cerr});
    if (std::cout.flush()) return status;
    std::cerr << "the output can't be written\n";
    return 1;
}
