#include "text/TextSteps.h"

#include "text/Utf8.h"

namespace tessaryn {

namespace {

bool Holds(std::string_view text, int position, char byte) {
    return position >= 0 && position < static_cast<int>(text.size()) &&
           text[static_cast<std::size_t>(position)] == byte;
}

bool WithinCrLf(std::string_view text, int position) {
    return Holds(text, position - 1, '\r') && Holds(text, position, '\n');
}

}  // namespace

int CharStart(std::string_view text, int position) {
    for (int back = 1; back < 4; ++back) {
        if (SequenceLength(text, position - back) > back) return position - back;
    }
    return position;
}

int CharEnd(std::string_view text, int position) {
    const int start = CharStart(text, position);
    return start == position ? position : start + SequenceLength(text, start);
}

int StepStart(std::string_view text, int position) {
    return WithinCrLf(text, position) ? position - 1 : CharStart(text, position);
}

int StepEnd(std::string_view text, int position) {
    const int start = StepStart(text, position);
    if (WithinCrLf(text, start + 1)) return start + 2;
    return start + SequenceLength(text, start);
}

std::string WithCrLf(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            result += text[i];
            continue;
        }
        result += "\r\n";
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    }
    return result;
}

}  // namespace tessaryn
