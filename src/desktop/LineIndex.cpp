#include "desktop/LineIndex.h"

#include <algorithm>
#include <cstddef>

#include "text/Utf8.h"

namespace tessaryn {

namespace {

// Places behind each LF of a stretch of text.
std::vector<int> StartsIn(std::string_view text, int first, int last) {
    std::vector<int> starts;
    const auto end = static_cast<std::size_t>(last);
    auto found = text.find('\n', static_cast<std::size_t>(first));
    while (found != std::string_view::npos && found < end) {
        starts.push_back(static_cast<int>(found) + 1);
        found = text.find('\n', found + 1);
    }
    return starts;
}

int Columns(std::string_view line) {
    int columns = 0;
    for (;;) {
        const std::size_t tab = line.find('\t');
        columns += CharacterCount(line.substr(0, tab));
        if (tab == line.npos) break;
        columns += LineIndex::TabColumns - columns % LineIndex::TabColumns;
        line.remove_prefix(tab + 1);
    }
    return columns;
}

// Bytes of the character at a position, and its UTF-16 units.
struct Step {
    int bytes;
    int units;
};

Step StepAt(std::string_view text, int position) {
    const auto at = static_cast<std::size_t>(position);
    if (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') return {2, 1};
    if (static_cast<unsigned char>(text[at]) < 0x80) return {1, 1};
    const int length = SequenceLength(text, position);
    return {length, length == 4 ? 2 : 1};
}

int UnitsIn(std::string_view text, int first, int last) {
    int units = 0;
    while (first < last) {
        const Step step = StepAt(text, first);
        first += step.bytes;
        units += step.units;
    }
    return units;
}

}  // namespace

void LineIndex::Rebuild(std::string_view text) {
    starts_ = StartsIn(text, 0, static_cast<int>(text.size()));
    starts_.insert(starts_.begin(), 0);
    unitStarts_.assign(1, 0);
    widest_ = widestLine_ = 0;
    FindWidest(text, 0, Count() - 1);
}

void LineIndex::Update(std::string_view text, int start, int removed, int inserted) {
    const auto first = std::upper_bound(starts_.begin(), starts_.end(), start);
    const auto last = std::upper_bound(first, starts_.end(), start + removed);
    const int line = static_cast<int>(first - starts_.begin()) - 1;  // the one that start is in
    const int gone = static_cast<int>(last - first);
    const int delta = inserted - removed;
    if (delta != 0) std::for_each(last, starts_.end(), [&](int& place) { place += delta; });
    const auto newStarts = StartsIn(text, start, start + inserted);
    const int added = static_cast<int>(newStarts.size());
    starts_.insert(starts_.erase(first, last), newStarts.begin(), newStarts.end());
    unitStarts_.resize(std::min(unitStarts_.size(), static_cast<std::size_t>(line) + 1));

    if (widestLine_ > line + gone) {
        widestLine_ += added - gone;
    } else if (widestLine_ >= line) {
        widest_ = widestLine_ = 0;
        return FindWidest(text, 0, Count() - 1);
    }
    FindWidest(text, line, line + added);
}

void LineIndex::FindWidest(std::string_view text, int first, int last) {
    for (int line = first; line <= last; ++line) {
        const int start = Start(line);
        const int behind = line + 1 < Count() ? Start(line + 1) : static_cast<int>(text.size());
        // No byte takes more columns than a TAB.
        if ((behind - start) * TabColumns <= widest_) continue;
        const int length = End(text, line) - start;
        const int columns =
            Columns(text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length)));
        if (columns <= widest_) continue;
        widest_ = columns;
        widestLine_ = line;
    }
}

int LineIndex::LineAt(int position) const {
    const auto behind = std::upper_bound(starts_.begin(), starts_.end(), position);
    return std::max(0, static_cast<int>(behind - starts_.begin()) - 1);
}

int LineIndex::End(std::string_view text, int line) const {
    int end = line + 1 < Count() ? Start(line + 1) - 1 : static_cast<int>(text.size());
    if (end > Start(line) && line + 1 < Count() &&
        text[static_cast<std::size_t>(end) - 1] == '\r') {
        --end;
    }
    return end;
}

// --- units

// Where a line begins; the text's end for the one behind the last.
int LineIndex::UnitStart(std::string_view text, int line) const {
    while (static_cast<int>(unitStarts_.size()) <= line) {
        const int number = static_cast<int>(unitStarts_.size()) - 1;
        const bool last = number + 1 == Count();
        const int end = last ? static_cast<int>(text.size()) : Start(number + 1);
        unitStarts_.push_back(unitStarts_.back() + UnitsIn(text, Start(number), end));
    }
    return unitStarts_[static_cast<std::size_t>(line)];
}

int LineIndex::Units(std::string_view text) const {
    return UnitStart(text, Count());
}

int LineIndex::UnitAt(std::string_view text, int position) const {
    const int line = LineAt(position);
    const int end = std::min(position, static_cast<int>(text.size()));
    return UnitStart(text, line) + UnitsIn(text, Start(line), end);
}

int LineIndex::ByteAt(std::string_view text, int unit) const {
    if (unit >= Units(text)) return static_cast<int>(text.size());
    const auto behind = std::upper_bound(unitStarts_.begin(), unitStarts_.end() - 1, unit);
    const auto line = std::max<std::ptrdiff_t>(0, behind - unitStarts_.begin() - 1);
    int left = unit - unitStarts_[static_cast<std::size_t>(line)];
    int position = Start(static_cast<int>(line));
    while (left > 0) {
        const Step step = StepAt(text, position);
        if (step.units > left) break;  // between two surrogates
        left -= step.units;
        position += step.bytes;
    }
    return position;
}

}  // namespace tessaryn
