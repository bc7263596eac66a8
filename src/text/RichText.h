// Formatted text as a value: what a rich-text surface holds and what RTF is written from.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessaryn {

using Colour = std::uint32_t;  // 0xRRGGBB

constexpr Colour Rgb(unsigned red, unsigned green, unsigned blue) {
    return (red << 16) | (green << 8) | blue;
}

struct CharFormat {
    std::string Font = "Courier New";
    int Size = 12;  // points
    Colour Color = 0;
    bool Bold = false;

    bool operator==(const CharFormat&) const = default;
};

// A stretch of text in one format.
struct FormatRun {
    int start = 0;   // 0-based byte; relative to the block where a block's runs are meant
    int length = 0;  // bytes, above 0
    CharFormat format;

    bool operator==(const FormatRun&) const = default;
};

enum class Alignment { Left, Right, Center };

struct RichText {
    std::string text;             // UTF-8, line ends CR LF
    std::vector<FormatRun> runs;  // in order, covering the text
    Alignment alignment = Alignment::Left;

    bool operator==(const RichText&) const = default;
};

// Text between programs.
struct Clip {
    std::string plain;  // UTF-8, line ends CR LF
    std::string rtf;    // the same with its look; "" if there is none

    bool operator==(const Clip&) const = default;
};

// The same, made when a program asks for it. It needs nothing that may have changed by then.
struct LateClip {
    bool hasRtf = false;
    std::function<Clip()> make;
};
inline LateClip TextAlone(const std::string& text) {
    return {false, [text] { return Clip{text, ""}; }};
}

}  // namespace tessaryn
