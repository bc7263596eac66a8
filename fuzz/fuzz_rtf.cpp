// Any bytes as rich text from the clipboard. Seeds lie in corpus/rtf.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "text/Rtf.h"
#include "text/Utf8.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const tessaryn::RichText content = tessaryn::ReadRtf(std::string(data, data + size));
    int covered = 0;
    for (const tessaryn::FormatRun& run : content.runs) {
        if (run.start != covered || run.length <= 0) std::abort();
        covered += run.length;
    }
    if (covered != static_cast<int>(content.text.size())) std::abort();
    if (!tessaryn::IsUtf8(content.text)) std::abort();
    tessaryn::ReadRtf(tessaryn::WriteRtf(content));
    return 0;
}
