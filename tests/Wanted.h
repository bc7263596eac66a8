#pragma once

#include <cstdlib>

namespace tessaryn {

// A number from the environment, which makes a long run of a test.
inline int Wanted(const char* variable, int otherwise) {
    const char* wanted = std::getenv(variable);
    return wanted == nullptr ? otherwise : std::atoi(wanted);
}

}  // namespace tessaryn
