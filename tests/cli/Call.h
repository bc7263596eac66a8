// tessaryn-cli without a process of its own.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "cli/CommandLine.h"

namespace tessaryn {

struct Outcome {
    int status;
    std::string output;
    std::string error;
};

inline Outcome Call(const std::vector<std::string>& arguments, const std::string& input = "") {
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunCommandLine(arguments, {in, out, err});
    return {status, out.str(), err.str()};
}

}  // namespace tessaryn
