#include "text/TextBlocks.h"

#include <algorithm>
#include <cstring>
#include <iterator>
#include <optional>
#include <utility>

namespace tessaryn {

SurfaceChange MergedChange(const SurfaceChange& earlier, const SurfaceChange& later) {
    if (!earlier.any) return later;
    if (!later.any) return earlier;
    // Both ends in the text between the two changes; what lies outside is the same in all three.
    const int start = std::min(earlier.start, later.start);
    const int end = std::max(earlier.start + earlier.inserted, later.start + later.removed);
    return {true, start, end - start + earlier.removed - earlier.inserted,
            end - start + later.inserted - later.removed};
}

// --- formats

std::size_t FormatTable::Hash::operator()(const CharFormat& format) const {
    const std::uint64_t attributes = (static_cast<std::uint64_t>(format.Color) << 16) +
                                     (static_cast<std::uint64_t>(format.Size) << 1) +
                                     (format.Bold ? 1 : 0);
    const auto spread = static_cast<std::size_t>(attributes * 0x9E3779B97F4A7C15U);
    return std::hash<std::string>()(format.Font) ^ spread;
}

FormatTable::Id FormatTable::Intern(const CharFormat& format) {
    constexpr int largestSize = 1638;  // what RTF and the common toolkits stop at
    if (format.Size < 1 || format.Size > largestSize || format.Color > 0xFFFFFF) {
        CharFormat limited = format;
        limited.Size = std::clamp(format.Size, 1, largestSize);
        limited.Color &= 0xFFFFFF;
        return Intern(limited);
    }
    const auto [entry, added] = ids.try_emplace(format, static_cast<Id>(formats.size()));
    if (added) formats.push_back(format);
    return entry->second;
}

void FormatTable::Clear() {
    ids.clear();
    formats.clear();
}

// --- runs of one block

// The run that covers a position; behind the last one, their number.
std::size_t TextBlocks::RunAt(const StoredRuns& runs, int position) {
    const auto found =
        std::upper_bound(runs.begin(), runs.end(), position,
                         [](int place, const StoredRun& run) { return place < run.end; });
    return static_cast<std::size_t>(found - runs.begin());
}

void TextBlocks::AppendRun(StoredRuns& runs, int length, FormatTable::Id format) {
    if (length <= 0) return;
    const int end = (runs.empty() ? 0 : runs.back().end) + length;
    if (!runs.empty() && runs.back().format == format) {
        runs.back().end = end;
    } else {
        runs.push_back({end, format});
    }
}

// Appends what `source` says of the positions first to last - 1.
void TextBlocks::AppendPart(StoredRuns& runs, const StoredRuns& source, int first, int last) {
    int start = std::max(first, 0);
    for (std::size_t i = RunAt(source, start); i < source.size() && start < last; ++i) {
        const int end = std::min(source[i].end, last);
        AppendRun(runs, end - start, source[i].format);
        start = end;
    }
}

TextBlocks::StoredRuns TextBlocks::Stored(const std::vector<FormatRun>& runs, int length) {
    StoredRuns stored;
    int done = 0;
    auto fillTo = [&](int position) {
        if (done < position) AppendRun(stored, position - done, formats.Intern({}));
        done = std::max(done, position);
    };
    for (const FormatRun& run : runs) {
        const int start = std::clamp(run.start, done, length);
        if (run.length <= 0 || run.start >= length) continue;
        const int end = run.start + std::min(run.length, length - std::max(run.start, 0));
        if (end <= start) continue;
        fillTo(start);
        AppendRun(stored, end - start, formats.Intern(run.format));
        done = end;
    }
    fillTo(length);
    return stored;
}

// The block, with its runs there.
TextBlocks::StoredBlock& TextBlocks::Formatted(std::size_t index) {
    StoredBlock& block = blocks[index];
    if (!block.pending) return block;
    const auto runs = formatter ? formatter(static_cast<int>(index)) : std::vector<FormatRun>();
    block.runs = Stored(runs, block.length);
    block.runs.shrink_to_fit();
    block.pending = false;
    return block;
}

// --- places

// Of each block, and the end.
const std::vector<int>& TextBlocks::Starts() {
    if (starts.empty()) starts.push_back(0);
    while (starts.size() <= blocks.size()) {
        starts.push_back(starts.back() + blocks[starts.size() - 1].length);
    }
    return starts;
}

// The block that holds the position; for the end of the text the last one.
std::size_t TextBlocks::BlockAt(int position) {
    const auto& all = Starts();
    const auto next = std::upper_bound(all.begin(), all.end() - 1, position);
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(next - all.begin() - 1, 0));
}

// --- reading

CharFormat TextBlocks::FormatAt(int position) {
    const std::size_t index = BlockAt(position);
    const StoredBlock& block = Formatted(index);
    return formats[block.runs[RunAt(block.runs, position - Starts()[index])].format];
}

// Across blocks, so that equal neighbours join.
TextBlocks::StoredRuns TextBlocks::StoredIn(int first, int last) {
    StoredRuns found;
    if (first >= last) return found;
    for (std::size_t i = BlockAt(first); i < blocks.size() && Starts()[i] < last; ++i) {
        AppendPart(found, Formatted(i).runs, first - starts[i], last - starts[i]);
    }
    return found;
}

std::vector<FormatRun> TextBlocks::RunsIn(int first, int last) {
    std::vector<FormatRun> result;
    const StoredRuns found = StoredIn(first, last);
    result.reserve(found.size());
    int start = first;
    for (const StoredRun& run : found) {
        const int end = first + run.end;
        result.push_back({start, end - start, formats[run.format]});
        start = end;
    }
    return result;
}

// --- changing

// Content that comes whole, or has grown, is cut into pieces, so that an edit moves only the runs
// of its own piece.
constexpr int pieceLength = 4096;  // bytes

std::vector<TextBlocks::StoredBlock> TextBlocks::Pieces(const StoredRuns& runs, int length) {
    std::vector<StoredBlock> pieces;
    for (int start = 0; start < length; start += pieceLength) {
        StoredBlock piece;
        piece.length = std::min(pieceLength, length - start);
        piece.edited = true;
        AppendPart(piece.runs, runs, start, start + piece.length);
        pieces.push_back(std::move(piece));
    }
    return pieces;
}

SurfaceChange TextBlocks::Assign(std::string newText, const std::vector<FormatRun>& runs) {
    if (newText == text && Stored(runs, Length()) == StoredIn(0, Length())) return {};
    const int oldLength = Length();
    text = std::move(newText);
    starts.clear();
    formats.Clear();  // nothing refers to it any more, so it can't grow for ever
    formatter = nullptr;
    blocks = Pieces(Stored(runs, Length()), Length());
    return {oldLength > 0 || Length() > 0, 0, oldLength, Length()};
}

void TextBlocks::ReplaceBlocks(std::size_t first, std::size_t last,
                               std::vector<StoredBlock> replacement) {
    const auto at = [this](std::size_t index) {
        return blocks.begin() + static_cast<std::ptrdiff_t>(index);
    };
    const std::size_t shared = std::min(last - first, replacement.size());
    const auto rest = replacement.begin() + static_cast<std::ptrdiff_t>(shared);
    // Whatever can fail comes first.
    const std::size_t size = blocks.size() + replacement.size() - (last - first);
    if (size > blocks.capacity()) blocks.reserve(std::max(size, 2 * blocks.capacity()));
    std::move(replacement.begin(), rest, at(first));
    if (rest == replacement.end()) {
        blocks.erase(at(first + shared), at(last));
    } else {
        blocks.insert(at(last), std::make_move_iterator(rest),
                      std::make_move_iterator(replacement.end()));
    }
    starts.resize(std::min(starts.size(), first + 1));
}

SurfaceChange TextBlocks::Replace(int start, int removed, std::string_view newText,
                                  const std::vector<FormatRun>& runs) {
    if (removed == 0 && newText.empty()) return {};
    const int inserted = static_cast<int>(newText.size());
    std::vector<StoredBlock> merged(1);  // takes the place of all blocks touched
    merged[0].edited = true;
    merged[0].runs = Stored(runs, inserted);
    merged[0].length = inserted;
    std::size_t first = 0;
    std::size_t last = 0;
    if (!blocks.empty()) {
        first = BlockAt(removed > 0 ? start : std::max(start - 1, 0));
        last = removed > 0 ? BlockAt(start + removed - 1) : first;
        Formatted(last);
        StoredRuns all;
        AppendPart(all, Formatted(first).runs, 0, start - starts[first]);
        AppendPart(all, merged[0].runs, 0, inserted);
        AppendPart(all, blocks[last].runs, start + removed - starts[last], blocks[last].length);
        merged[0].runs = std::move(all);
        merged[0].length = starts[last] + blocks[last].length - starts[first] - removed + inserted;
        ++last;
    }
    if (merged[0].length == 0) merged.clear();
    if (!merged.empty() && merged[0].length > 2 * pieceLength) {
        merged = Pieces(merged[0].runs, merged[0].length);
    }
    ReplaceBlocks(first, last, std::move(merged));
    text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(removed), newText);
    return {true, start, removed, inserted};
}

// first and last are positions in the block; so are those of the result.
SurfaceChange TextBlocks::ReformatBlock(StoredBlock& block, int first, int last,
                                        const Reformatter& reformatter) {
    SurfaceChange change;
    StoredRuns result;
    AppendPart(result, block.runs, 0, first);
    int start = first;
    for (std::size_t i = RunAt(block.runs, first); start < last; ++i) {
        const StoredRun& run = block.runs[i];
        const int length = std::min(run.end, last) - start;
        CharFormat format = formats[run.format];
        reformatter(format);
        const FormatTable::Id id = formats.Intern(format);
        if (id != run.format) change = MergedChange(change, {true, start, length, length});
        AppendRun(result, length, id);
        start += length;
    }
    if (!change.any) return change;
    AppendPart(result, block.runs, last, block.length);
    block.runs = std::move(result);
    block.edited = true;
    return change;
}

SurfaceChange TextBlocks::Reformat(int start, int length, const Reformatter& reformatter) {
    SurfaceChange change;
    if (length <= 0) return change;
    const int end = start + length;
    for (std::size_t i = BlockAt(start); i < blocks.size() && Starts()[i] < end; ++i) {
        StoredBlock& block = Formatted(i);
        const int offset = starts[i];
        SurfaceChange part = ReformatBlock(block, std::max(start - offset, 0),
                                           std::min(end - offset, block.length), reformatter);
        part.start += offset;
        change = MergedChange(change, part);
    }
    return change;
}

// --- the display's blocks

bool TextBlocks::SameBlock(const StoredBlock& old, int oldStart, std::string_view newText,
                           const Block& block, int newStart) const {
    return old.key == block.key && old.length == block.length && !old.edited &&
           std::memcmp(text.data() + oldStart, newText.data() + newStart,
                       static_cast<std::size_t>(block.length)) == 0;
}

namespace {

// The blocks as they fit the text: none below 0 or beyond its end. Empty where all do and the last
// one ends with the text, which is as good as always.
std::optional<std::vector<TextBlocks::Block>> Fitted(const std::vector<TextBlocks::Block>& blocks,
                                                     int textLength) {
    int rest = textLength;
    bool fits = true;
    for (const auto& block : blocks) {
        fits = fits && block.length >= 0 && block.length <= rest;
        if (!fits) break;
        rest -= block.length;
    }
    if (fits && rest == 0) return std::nullopt;
    std::vector<TextBlocks::Block> fitted = blocks;
    rest = textLength;
    for (auto& block : fitted) {
        block.length = std::clamp(block.length, 0, rest);
        rest -= block.length;
    }
    if (fitted.empty()) fitted.emplace_back();
    fitted.back().length += rest;
    return fitted;
}

}  // namespace

SurfaceChange TextBlocks::SetBlocks(std::string_view newText, const std::vector<Block>& newBlocks,
                                    Formatter newFormatter) {
    const auto fitted = Fitted(newBlocks, static_cast<int>(newText.size()));
    formatter = std::move(newFormatter);
    return SetBlocks(0, blocks.size(), newText, fitted ? *fitted : newBlocks);
}

SurfaceChange TextBlocks::SetBlocks(std::size_t first, std::size_t last, std::string_view newText,
                                    const std::vector<Block>& newBlocks) {
    const int offset = Starts()[first];
    const std::size_t most = std::min(last - first, newBlocks.size());
    std::size_t head = 0;
    int start = 0;
    while (head < most &&
           SameBlock(blocks[first + head], offset + start, newText, newBlocks[head], start)) {
        start += newBlocks[head].length;
        ++head;
    }
    std::size_t tail = 0;
    int oldEnd = Starts()[last];
    int newEnd = static_cast<int>(newText.size());
    while (tail < most - head) {
        const Block& block = newBlocks[newBlocks.size() - tail - 1];
        const StoredBlock& old = blocks[last - tail - 1];
        if (!SameBlock(old, oldEnd - old.length, newText, block, newEnd - block.length)) break;
        oldEnd -= block.length;
        newEnd -= block.length;
        ++tail;
    }
    std::vector<StoredBlock> fresh(newBlocks.size() - tail - head);
    for (std::size_t i = 0; i < fresh.size(); ++i) {
        fresh[i].key = newBlocks[head + i].key;
        fresh[i].length = newBlocks[head + i].length;
        fresh[i].pending = true;
    }
    ReplaceBlocks(first + head, last - tail, std::move(fresh));
    const int removed = oldEnd - offset - start;
    const int inserted = newEnd - start;
    text.replace(
        static_cast<std::size_t>(offset + start), static_cast<std::size_t>(removed),
        newText.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(inserted)));
    return {removed > 0 || inserted > 0, offset + start, removed, inserted};
}

}  // namespace tessaryn
