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
    const int size = static_cast<int>(text.size());
    starts_ = StartsIn(text, 0, size);
    starts_.insert(starts_.begin(), 0);
    columns_.assign(starts_.size(), 0);
    Measure(text, 0, Count() - 1);
    unitStarts_.assign(2, 0);
    CountUnits(text, 0, 0, Count() - 1);
}

void LineIndex::Update(std::string_view text, int start, int removed, int inserted) {
    const auto first = std::upper_bound(starts_.begin(), starts_.end(), start);
    const auto last = std::upper_bound(first, starts_.end(), start + removed);
    const int line = static_cast<int>(first - starts_.begin()) - 1;  // the one that start is in
    const int delta = inserted - removed;
    if (delta != 0) std::for_each(last, starts_.end(), [&](int& place) { place += delta; });

    const auto added = StartsIn(text, start, start + inserted);
    const auto gone = last - first;
    const auto columns = columns_.begin() + line + 1;
    columns_.insert(columns_.erase(columns, columns + gone), added.size(), 0);
    starts_.insert(starts_.erase(first, last), added.begin(), added.end());
    Measure(text, line, line + static_cast<int>(added.size()));
    CountUnits(text, line, static_cast<int>(gone), static_cast<int>(added.size()));
}

void LineIndex::Measure(std::string_view text, int first, int last) {
    for (int line = first; line <= last; ++line) {
        const auto start = static_cast<std::size_t>(Start(line));
        const auto end = static_cast<std::size_t>(End(text, line));
        columns_[static_cast<std::size_t>(line)] = Columns(text.substr(start, end - start));
    }
    widest_ = *std::max_element(columns_.begin(), columns_.end());
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

// `added` lines have come in the place of the `gone` ones behind `line`, which may have changed
// too.
void LineIndex::CountUnits(std::string_view text, int line, int gone, int added) {
    const auto behind = unitStarts_.begin() + line + 1;
    unitStarts_.insert(unitStarts_.erase(behind, behind + gone), static_cast<std::size_t>(added),
                       0);
    auto place = unitStarts_.begin() + line;
    int units = *place;
    for (int number = line; number <= line + added; ++number) {
        *place++ = units;
        const bool last = number + 1 == Count();
        units +=
            UnitsIn(text, Start(number), last ? static_cast<int>(text.size()) : Start(number + 1));
    }
    const int delta = units - *place;
    if (delta != 0) std::for_each(place, unitStarts_.end(), [=](int& start) { start += delta; });
}

int LineIndex::UnitAt(std::string_view text, int position) const {
    const int line = LineAt(position);
    const int end = std::min(position, static_cast<int>(text.size()));
    return unitStarts_[static_cast<std::size_t>(line)] + UnitsIn(text, Start(line), end);
}

int LineIndex::ByteAt(std::string_view text, int unit) const {
    const auto behind = std::upper_bound(unitStarts_.begin(), unitStarts_.end() - 1, unit);
    const auto line = std::max<std::ptrdiff_t>(0, behind - unitStarts_.begin() - 1);
    int left = unit - unitStarts_[static_cast<std::size_t>(line)];
    int position = Start(static_cast<int>(line));
    while (left > 0 && position < static_cast<int>(text.size())) {
        const Step step = StepAt(text, position);
        if (step.units > left) break;  // between two surrogates
        left -= step.units;
        position += step.bytes;
    }
    return position;
}

}  // namespace tessaryn
