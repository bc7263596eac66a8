// The content of a rich-text surface: one flat text, cut into blocks that each hold their own
// format runs. A block's runs may be pending: they are asked for when someone first needs them.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "text/RichText.h"

namespace tessaryn {

// A stretch of the content that was replaced by another.
struct SurfaceChange {
    bool any = false;
    int start = 0;     // first byte that may differ
    int removed = 0;   // bytes of the old text replaced
    int inserted = 0;  // bytes of the new text that replace them
};

// The one change that covers `earlier` and, made after it, `later`.
SurfaceChange MergedChange(const SurfaceChange& earlier, const SurfaceChange& later);

// Each format once, under a small number.
struct FormatTable {
    using Id = std::uint32_t;

    Id Intern(const CharFormat& format);  // limits size and colour to what there is
    const CharFormat& operator[](Id id) const { return formats[id]; }
    void Clear();

  private:
    struct Hash {
        std::size_t operator()(const CharFormat& format) const;
    };
    std::unordered_map<CharFormat, Id, Hash> ids;
    std::vector<CharFormat> formats;  // by number
};

struct TextBlocks {
    struct Block {
        int length = 0;         // bytes, above 0
        std::uint64_t key = 0;  // equal text and equal key mean equal formats
    };
    using Formatter = std::function<std::vector<FormatRun>(int index)>;
    using Reformatter = std::function<void(CharFormat&)>;

    const std::string& Text() const { return text; }
    int Length() const { return static_cast<int>(text.size()); }

    // Positions must lie within the text here and below.
    CharFormat FormatAt(int position);  // of the character there; the text is not empty
    std::vector<FormatRun> RunsIn(int first, int last);

    // Each of these tells what it changed. Runs given need not cover the text: what they leave out
    // gets the default format, what sticks out is dropped.
    SurfaceChange Assign(std::string newText, const std::vector<FormatRun>& runs);
    SurfaceChange Replace(int start, int removed, std::string_view newText,
                          const std::vector<FormatRun>& runs);
    SurfaceChange Reformat(int start, int length, const Reformatter& reformatter);
    SurfaceChange SetBlocks(std::string_view newText, const std::vector<Block>& newBlocks,
                            Formatter newFormatter);
    // The same for blocks first to last - 1 alone (0-based); newText is what stands there then, and
    // the new blocks cover it. The formatter stays.
    SurfaceChange SetBlocks(std::size_t first, std::size_t last, std::string_view newText,
                            const std::vector<Block>& newBlocks);

  private:
    struct StoredRun {
        int end;  // where it ends in its block; it begins where the one ahead of it ends
        FormatTable::Id format;

        bool operator==(const StoredRun&) const = default;
    };
    using StoredRuns = std::vector<StoredRun>;

    struct StoredBlock {
        std::uint64_t key = 0;
        int length = 0;
        bool pending = false;  // the formatter has not been asked for its runs
        bool edited = false;   // changed since it was given, so that its key says nothing any more
        StoredRuns runs;
    };

    static std::size_t RunAt(const StoredRuns& runs, int position);
    static void AppendRun(StoredRuns& runs, int length, FormatTable::Id format);
    static void AppendPart(StoredRuns& runs, const StoredRuns& source, int first, int last);
    static std::vector<StoredBlock> Pieces(const StoredRuns& runs, int length);
    StoredRuns Stored(const std::vector<FormatRun>& runs, int length);
    StoredRuns StoredIn(int first, int last);
    StoredBlock& Formatted(std::size_t index);
    const std::vector<int>& Starts();
    std::size_t BlockAt(int position);
    SurfaceChange ReformatBlock(StoredBlock& block, int first, int last,
                                const Reformatter& reformatter);
    bool SameBlock(const StoredBlock& old, int oldStart, std::string_view newText,
                   const Block& block, int newStart) const;
    void ReplaceBlocks(std::size_t first, std::size_t last, std::vector<StoredBlock> replacement);

    std::string text;
    std::vector<StoredBlock> blocks;  // their lengths add up to that of the text
    std::vector<int> starts;          // of the first blocks; the rest, and the end, when asked for
    FormatTable formats;
    Formatter formatter;
};

}  // namespace tessaryn
