// What holds for rich text that is read from any bytes.
#pragma once

#include <string>

#include "text/Rtf.h"
#include "text/Utf8.h"

namespace tessaryn {

// The first law that reading the bytes breaks, "" if none: runs are in order, without gaps, as long
// as they can be, and cover the text, which is UTF-8.
inline std::string BrokenRtfLaw(const std::string& bytes) {
    const RichText content = ReadRtf(bytes);
    int end = 0;
    for (std::size_t i = 0; i < content.runs.size(); ++i) {
        const FormatRun& run = content.runs[i];
        if (run.start != end || run.length <= 0) return "runs stand side by side";
        if (i > 0 && run.format == content.runs[i - 1].format) return "runs differ";
        end += run.length;
    }
    if (end != static_cast<int>(content.text.size())) return "runs cover the text";
    if (!IsUtf8(content.text)) return "the text is UTF-8";
    return ReadRtf(WriteRtf(content)) == content ? "" : "what is written is read as it was";
}

}  // namespace tessaryn
