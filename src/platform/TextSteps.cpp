#include "platform/TextSteps.h"

#include <algorithm>

namespace tessaryn {

namespace {

int ByteAt(std::string_view text, int position) {
    if (position < 0 || position >= static_cast<int>(text.size())) return -1;
    return static_cast<unsigned char>(text[static_cast<std::size_t>(position)]);
}

bool IsContinuation(int byte) {
    return byte >= 0x80 && byte < 0xC0;
}

// By its first byte; whether the rest is there is another matter.
int PromisedLength(int byte) {
    if (byte >= 0xC2 && byte < 0xE0) return 2;
    if (byte >= 0xE0 && byte < 0xF0) return 3;
    if (byte >= 0xF0 && byte < 0xF5) return 4;
    return 1;
}

bool WithinCrLf(std::string_view text, int position) {
    return ByteAt(text, position - 1) == '\r' && ByteAt(text, position) == '\n';
}

}  // namespace

int SequenceLength(std::string_view text, int position) {
    if (ByteAt(text, position) < 0) return 0;
    const int length = PromisedLength(ByteAt(text, position));
    for (int i = 1; i < length; ++i) {
        if (!IsContinuation(ByteAt(text, position + i))) return 1;
    }
    return length;
}

int CharStart(std::string_view text, int position) {
    for (int back = 1; back < 4 && IsContinuation(ByteAt(text, position - back + 1)); ++back) {
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

void AppendUtf8(std::string& text, char32_t character) {
    auto put = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    auto rest = [&](int shift) { put(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) return put(character);
    if (character < 0x800) {
        put(0xC0 | (character >> 6));
        return rest(0);
    }
    if (character < 0x10000) {
        put(0xE0 | (character >> 12));
        rest(6);
        return rest(0);
    }
    put(0xF0 | (character >> 18));
    rest(12);
    rest(6);
    rest(0);
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
