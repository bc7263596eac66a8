// Any bytes as the text of an expression. Seeds lie in corpus/parse.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "ParseLaws.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string law = tessaryn::BrokenLaw(std::string(data, data + size));
    if (law.empty()) return 0;
    std::fprintf(stderr, "broken: %s\n", law.c_str());
    std::abort();
}
