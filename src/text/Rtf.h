// Formatted text to and from RTF 1.x.
#pragma once

#include <string>
#include <string_view>

#include "text/RichText.h"

namespace tessaryn {

bool IsRtf(std::string_view text);

std::string WriteRtf(const RichText& content);

// Takes RTF of any program and of any damage: what it does not know is skipped, and truncated input
// gives what was read so far. Text that is no RTF is taken as plain text in the default format. The
// result is valid UTF-8 whatever the input.
RichText ReadRtf(std::string_view rtf);

}  // namespace tessaryn
