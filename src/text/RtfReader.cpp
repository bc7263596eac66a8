// RTF is a stream of groups { }, control words (\name with an optional number and blank), control
// symbols (\ and one other character) and text. A group inherits the state around it and gives it
// back at its end. What a group holds is told by the word it opens with: its destination.

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "text/Encoding.h"
#include "text/Rtf.h"
#include "text/TextSteps.h"
#include "text/Utf8.h"

namespace tessaryn {

namespace {

// Far above what any text needs; a hostile one must not eat the memory.
constexpr std::size_t longestInput = 64u << 20;
constexpr std::size_t deepestGroup = 1000;
constexpr std::size_t mostRuns = 500000;
constexpr std::size_t mostTableEntries = 65536;
constexpr std::size_t longestFontName = 100;

enum class Destination { Text, Fonts, Colours, Skip };

struct RunFormat {
    int font = -1;  // number in the font table; -1: the default font
    int halfPoints = 24;
    int colour = 0;  // number in the colour table
    bool bold = false;

    bool operator==(const RunFormat&) const = default;
};

struct Group {
    Destination destination = Destination::Text;
    RunFormat format;
    int fallbackLength = 1;  // characters behind \u for readers without Unicode
    bool hidden = false;
};

struct Font {
    std::string name;
    bool symbols = false;  // its characters are glyph numbers
};

struct Run {
    int length;
    RunFormat format;
};

const std::unordered_map<std::string_view, char32_t> characterWords{
    {"tab", '\t'},      {"cell", '\t'},      {"emdash", 0x2014},    {"endash", 0x2013},
    {"lquote", 0x2018}, {"rquote", 0x2019},  {"ldblquote", 0x201C}, {"rdblquote", 0x201D},
    {"bullet", 0x2022}, {"emspace", 0x2003}, {"enspace", 0x2002},   {"qmspace", 0x2005},
    {"par", '\n'},      {"line", '\n'},      {"sect", '\n'},        {"page", '\n'},
    {"column", '\n'},   {"row", '\n'},
};

// Unstarred destinations whose text is no part of the document's.
const std::unordered_set<std::string_view> skippedDestinations{
    "stylesheet", "info",    "pict",     "object",     "header",  "headerl",  "headerr",
    "headerf",    "footer",  "footerl",  "footerr",    "footerf", "footnote", "annotation",
    "filetbl",    "revtbl",  "xe",       "tc",         "rxe",     "txe",      "fldinst",
    "private1",   "comment", "template", "nonshppict", "objdata", "listtable"};

bool IsLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

// Stands for itself wherever it is.
bool IsPlainAscii(char c) {
    return c >= ' ' && c <= '~' && c != '\\' && c != '{' && c != '}' && c != ';';
}

int HexValue(char c) {
    if (IsDigit(c)) return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

class Reader {
  public:
    explicit Reader(std::string_view input) : rtf(input.substr(0, longestInput)) {}

    RichText Read() {
        while (at < rtf.size() && !done) ReadNext();
        DropLastParagraphEnd();
        return Result();
    }

  private:
    // --- the stream

    char Peek() const { return at < rtf.size() ? rtf[at] : '\0'; }

    void ReadNext() {
        const char c = rtf[at++];
        switch (c) {
            case '{':
                return OpenGroup();
            case '}':
                return CloseGroup();
            case '\\':
                return ReadControl();
            case '\r':
            case '\n':
                return;  // breaks lines of the file, not of the text
            case '\0':
                return;  // what some writers end their clipboard text with
            default:
                --at;
                return ReadPlain();
        }
    }

    void OpenGroup() {
        toSkip = 0;
        starred = false;
        if (outer.size() < deepestGroup) {
            outer.push_back(group);
        } else {
            ++tooDeep;
        }
    }

    void CloseGroup() {
        toSkip = 0;
        starred = false;
        if (tooDeep > 0) {
            --tooDeep;
            return;
        }
        if (outer.empty()) return;
        group = outer.back();
        outer.pop_back();
        done = outer.empty();
    }

    void ReadPlain() {
        const std::size_t start = at;
        at += static_cast<std::size_t>(SequenceLength(rtf, static_cast<int>(start)));
        if (SkipFallback()) return;
        if (group.destination != Destination::Text && rtf[start] == ';') return EndTableEntry();
        if (at == start + 1 && !IsPlainAscii(rtf[start])) {
            return Put(FromWindows1252(static_cast<unsigned char>(rtf[start])));
        }
        while (at < rtf.size() && IsPlainAscii(rtf[at])) ++at;
        Put(rtf.substr(start, at - start));
    }

    void ReadControl() {
        if (at >= rtf.size()) return;
        if (IsLetter(Peek())) return ReadWord();
        const char symbol = rtf[at++];
        if (symbol == '\'') return ReadHexByte();
        if (symbol == '*') {
            starred = true;
            return;
        }
        if (SkipFallback()) return;
        switch (symbol) {
            case '~':
                return Put(0xA0);
            case '_':
                return Put(0x2011);
            case '-':
                return Put(0xAD);
            case '\t':
                return Put('\t');
            case '\r':
                if (Peek() == '\n') ++at;
                return Put('\n');
            case '\n':
                return Put('\n');
            case '\\':
            case '{':
            case '}':
                return Put(static_cast<unsigned char>(symbol));
            default:
                return;
        }
    }

    void ReadHexByte() {
        const int high = HexValue(Peek());
        if (high < 0) return;
        ++at;
        const int low = HexValue(Peek());
        if (low < 0) return;
        ++at;
        if (SkipFallback()) return;
        const auto byte = static_cast<unsigned char>(high * 16 + low);
        Put(byte == '\r' ? '\n' : FromWindows1252(byte));
    }

    void ReadWord() {
        const std::size_t start = at;
        while (IsLetter(Peek())) ++at;
        const std::string_view word = rtf.substr(start, at - start);
        const std::optional<int> number = ReadNumber();
        if (Peek() == ' ') ++at;
        if (word == "bin") at += std::min(AtLeast0(number), rtf.size() - at);
        if (SkipFallback()) return;
        ObeyWord(word, number);
        starred = false;
    }

    static std::size_t AtLeast0(std::optional<int> number) {
        return static_cast<std::size_t>(std::max(number.value_or(0), 0));
    }

    std::optional<int> ReadNumber() {
        const bool negative = Peek() == '-' && at + 1 < rtf.size() && IsDigit(rtf[at + 1]);
        if (negative) ++at;
        if (!IsDigit(Peek())) return std::nullopt;
        constexpr int largest = 1000000000;
        long long number = 0;
        for (; IsDigit(Peek()); ++at)
            number = std::min<long long>(number * 10 + Peek() - '0', largest);
        return static_cast<int>(negative ? -number : number);
    }

    // Of the characters that stand in for a \u; a word or a \'hh counts as one.
    bool SkipFallback() {
        if (toSkip == 0) return false;
        --toSkip;
        return true;
    }

    // --- control words

    void ObeyWord(std::string_view word, std::optional<int> number) {
        if (starred && word == "tessaryn") ownWriter = true;
        if (starred || skippedDestinations.contains(word)) {
            group.destination = Destination::Skip;
            return;
        }
        if (group.destination == Destination::Skip) return;
        if (const auto found = characterWords.find(word); found != characterWords.end()) {
            return Put(found->second);
        }
        if (word == "u") return PutUnit(number.value_or(0));
        if (word == "uc") {
            group.fallbackLength = static_cast<int>(std::min<std::size_t>(AtLeast0(number), 1000));
        } else if (word == "fonttbl") {
            group.destination = Destination::Fonts;
        } else if (word == "colortbl") {
            group.destination = Destination::Colours;
        } else if (word == "deff") {
            defaultFont = number.value_or(0);
        } else if (group.destination == Destination::Fonts) {
            ObeyInFontTable(word, number.value_or(0));
        } else if (group.destination == Destination::Colours) {
            ObeyInColourTable(word, number.value_or(0));
        } else {
            ObeyFormat(word, number);
        }
    }

    void ObeyInFontTable(std::string_view word, int number) {
        if (word == "f") {
            font = {};
            fontNumber = number;
        } else if (word == "fcharset") {
            font.symbols = number == 2;
        }
    }

    void ObeyInColourTable(std::string_view word, int number) {
        const auto part = static_cast<Colour>(std::clamp(number, 0, 255));
        if (word == "red") colour = (colour & 0x00FFFF) | (part << 16);
        if (word == "green") colour = (colour & 0xFF00FF) | (part << 8);
        if (word == "blue") colour = (colour & 0xFFFF00) | part;
    }

    void ObeyFormat(std::string_view word, std::optional<int> number) {
        if (word == "f") {
            group.format.font = std::max(number.value_or(0), 0);
        } else if (word == "fs") {
            group.format.halfPoints = std::clamp(number.value_or(24), 2, 3276);
        } else if (word == "cf") {
            group.format.colour = std::max(number.value_or(0), 0);
        } else if (word == "b") {
            group.format.bold = number.value_or(1) != 0;
        } else if (word == "v") {
            group.hidden = number.value_or(1) != 0;
        } else if (word == "plain") {
            group.format = {};
            group.hidden = false;
        } else if (text.empty()) {
            ObeyAlignment(word);
        }
    }

    // That of the first paragraph, since a surface has one only.
    void ObeyAlignment(std::string_view word) {
        if (word == "pard" || word == "ql" || word == "qj") alignment = Alignment::Left;
        if (word == "qc") alignment = Alignment::Center;
        if (word == "qr") alignment = Alignment::Right;
    }

    void EndTableEntry() {
        if (group.destination == Destination::Fonts) {
            if (fonts.size() < mostTableEntries) fonts[fontNumber] = font;
            font = {};
        } else if (group.destination == Destination::Colours) {
            if (colours.size() < mostTableEntries) colours.push_back(colour);
            colour = 0;
        }
    }

    // --- text

    // Word processors write glyphs of symbol fonts as private characters.
    char32_t Glyph(char32_t character) const {
        if (ownWriter || character < 0xF020 || character > 0xF0FF) return character;
        const auto found = fonts.find(group.format.font < 0 ? defaultFont : group.format.font);
        const bool symbols = found != fonts.end() && found->second.symbols;
        return symbols ? character - 0xF000 : character;
    }

    // \u gives a character beyond 16 bits in two units.
    void PutUnit(int number) {
        toSkip = group.fallbackLength;
        const auto unit = static_cast<char32_t>(static_cast<unsigned>(number) & 0xFFFF);
        if (unit >= 0xD800 && unit < 0xDC00) {
            FlushHighUnit();
            highUnit = unit;
        } else if (unit >= 0xDC00 && unit < 0xE000) {
            const char32_t high = std::exchange(highUnit, 0);
            Put(high == 0 ? ReplacementCharacter
                          : 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00));
        } else {
            Put(Glyph(unit));
        }
    }

    void FlushHighUnit() {
        if (std::exchange(highUnit, 0) != 0) Put(ReplacementCharacter);
    }

    void Put(char32_t character) {
        std::string sequence;
        if (character == '\n' && group.destination == Destination::Text) {
            sequence = "\r\n";
        } else {
            AppendUtf8(sequence, character);
        }
        Put(sequence);
    }

    void Put(std::string_view sequence) {
        starred = false;
        if (group.destination == Destination::Fonts) return LengthenFontName(sequence);
        if (group.destination != Destination::Text || group.hidden) return;
        FlushHighUnit();
        text += sequence;
        const int length = static_cast<int>(sequence.size());
        const bool full = runs.size() >= mostRuns;
        if (!runs.empty() && (full || runs.back().format == group.format)) {
            runs.back().length += length;
        } else {
            runs.push_back({length, group.format});
        }
    }

    void LengthenFontName(std::string_view sequence) {
        font.name += sequence.substr(0, longestFontName);
        const int end = static_cast<int>(std::min(font.name.size(), longestFontName));
        font.name.resize(static_cast<std::size_t>(CharStart(font.name, end)));
    }

    // --- the result

    // Most writers end the last paragraph as they end the others; on the surface that would be an
    // empty line more.
    void DropLastParagraphEnd() {
        FlushHighUnit();
        if (ownWriter || text.size() < 2 || text.compare(text.size() - 2, 2, "\r\n") != 0) return;
        text.resize(text.size() - 2);
        for (int rest = 2; rest > 0 && !runs.empty();) {
            const int part = std::min(rest, runs.back().length);
            runs.back().length -= part;
            rest -= part;
            if (runs.back().length == 0) runs.pop_back();
        }
    }

    CharFormat Resolved(const RunFormat& format) const {
        CharFormat result;
        const auto found = fonts.find(format.font < 0 ? defaultFont : format.font);
        if (found != fonts.end() && !found->second.name.empty()) result.Font = found->second.name;
        result.Size = std::max(format.halfPoints / 2, 1);
        const auto number = static_cast<std::size_t>(format.colour);
        if (number < colours.size()) result.Color = colours[number];
        result.Bold = format.bold;
        return result;
    }

    RichText Result() {
        RichText result;
        result.alignment = alignment;
        int start = 0;
        for (const Run& run : runs) {
            CharFormat format = Resolved(run.format);
            if (!result.runs.empty() && result.runs.back().format == format) {
                result.runs.back().length += run.length;
            } else {
                result.runs.push_back({start, run.length, std::move(format)});
            }
            start += run.length;
        }
        result.text = std::move(text);
        return result;
    }

    std::string_view rtf;
    std::size_t at = 0;
    bool done = false;  // the outermost group has ended

    Group group;
    std::vector<Group> outer;
    std::size_t tooDeep = 0;  // open groups that are not kept in outer
    bool starred = false;     // behind \*: the next word's group is for those who know it
    int toSkip = 0;           // characters that stand in for the last \u
    char32_t highUnit = 0;    // first half of a character that \u gives in two
    bool ownWriter = false;

    std::unordered_map<int, Font> fonts;
    Font font;  // the entry that is being read
    int fontNumber = 0;
    int defaultFont = 0;
    std::vector<Colour> colours;
    Colour colour = 0;  // likewise

    std::string text;
    std::vector<Run> runs;
    Alignment alignment = Alignment::Left;
};

}  // namespace

bool IsRtf(std::string_view text) {
    return text.substr(0, 5) == "{\\rtf";
}

RichText ReadRtf(std::string_view rtf) {
    if (IsRtf(rtf)) return Reader(rtf).Read();
    RichText plain;
    plain.text = WithCrLf(ToUtf8(std::string(rtf)));
    if (!plain.text.empty()) plain.runs = {{0, static_cast<int>(plain.text.size()), {}}};
    return plain;
}

}  // namespace tessaryn
