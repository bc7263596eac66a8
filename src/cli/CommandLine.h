// The command line of tessaryn-cli, apart from the process around it.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace tessaryn {

// The streams of a process. Results go to out, messages to err.
struct Streams {
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
};

// arguments: without the program's own name. Gives the exit status: 0 done, 1 the input was refused
// or an expectation failed, 2 wrong use.
int RunCommandLine(const std::vector<std::string>& arguments, const Streams& streams);

}  // namespace tessaryn
