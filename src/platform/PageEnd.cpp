#include "platform/PageEnd.h"

namespace tessaryn {

int LineStart(std::string_view text, int position) {
    if (position == 0) return 0;
    const std::size_t ahead = text.rfind('\n', static_cast<std::size_t>(position) - 1);
    return ahead == std::string_view::npos ? 0 : static_cast<int>(ahead) + 1;
}

namespace {

int NextLine(std::string_view text, int position) {
    const std::size_t end = text.find('\n', static_cast<std::size_t>(position));
    return static_cast<int>(end == std::string_view::npos ? text.size() : end + 1);
}

bool Hangs(std::string_view text, int line) {
    return text.substr(static_cast<std::size_t>(line)).starts_with('\t');
}

}  // namespace

int PageEnd(std::string_view text, int start, int end) {
    int line = LineStart(text, end);
    const bool parted = Hangs(text, line) || (line < end && Hangs(text, NextLine(text, end)));
    if (!parted) return end;
    while (line > start && Hangs(text, line)) line = LineStart(text, line - 1);
    return line > start ? line : end;
}

}  // namespace tessaryn
