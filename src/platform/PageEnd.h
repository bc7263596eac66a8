// Where pages end. Positions are in bytes, 0-based.
#pragma once

#include <string_view>

namespace tessaryn {

// Where the line of a position starts.
int LineStart(std::string_view text, int position);

// The position with which the next page begins, where this one begins at `start` and has room up to
// `end`. A line that begins with a TAB is not parted from the line ahead of it, unless the two
// alone, with all that hang on that line, take more than a page.
int PageEnd(std::string_view text, int start, int end);

}  // namespace tessaryn
