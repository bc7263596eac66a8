// Any bytes as rich text from the clipboard. Seeds lie in corpus/rtf.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "RtfLaws.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (!tessaryn::BrokenRtfLaw(std::string(data, data + size)).empty()) std::abort();
    return 0;
}
