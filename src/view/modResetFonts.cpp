// Builds the proof display from the document.
//
// The surface holds the same bytes as ProofText, visible block after visible block, but for two
// glyph swaps: "@" is shown as "e" in font Symbol, and a Conclusion's "4" as "5" in font Webdings
// while its block is folded. One surface block stands for one statement; its runs are worked out on
// demand.
#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "document/Document.h"
#include "expr/Lex.h"
#include "mainwindow/Proof.h"
#include "view/BlockFormats.h"
#include "view/Display.h"
#include "view/TextExchange.h"

namespace tessaryn {
namespace {

constexpr int Introduction = 0;  // stands for the introduction where a statement number is meant

std::vector<int> ShownBlocks;      // statement number of each block of the surface
bool StoredTextIsDamaged = false;  // some statement can't be lexed

bool BlockIsFolded(const Statement& conclusion, const Document& document) {
    return !At(conclusion.Arg1, document).Visible;
}

void SwapElementSigns(std::string& text, std::size_t first, std::size_t last) {
    for (std::size_t at = text.find('@', first); at < last; at = text.find('@', at + 1)) {
        text[at] = 'e';
    }
}

// --- the surface's text and blocks

// Mixes a value into a key (the step of the FNV-1a hash, over whole values).
void Mix(std::uint64_t& key, std::size_t value) {
    key = (key ^ value) * 0x100000001B3ULL;
}

// All that a block's formats depend on besides its bytes.
std::uint64_t BlockKey(const Statement& stmt, int fontSize) {
    std::uint64_t key = 0xCBF29CE484222325ULL;
    for (const int part : {stmt.EndUserComment > 0 ? stmt.EndUserComment - stmt.StartLine : -1,
                           stmt.StartStmt - stmt.StartLine, stmt.EndStmt - stmt.StartLine,
                           stmt.StartRule - stmt.StartLine, stmt.Rule, fontSize}) {
        Mix(key, static_cast<std::size_t>(part));
    }
    Mix(key, stmt.Highlight ? 1 : 0);
    for (const KeptText& list : {stmt.FreeVars, stmt.FixedVars, stmt.SpareVars}) {
        Mix(key, list.Key());
    }
    return key;
}

// Turns the element signs of a block, which begins at `start` in the text, into what shows them.
// `sign` is the text's first "@" from there on, and the first one behind the block afterwards.
void ShowSigns(std::string& text, std::size_t start, const Statement& stmt, std::size_t& sign,
               const Document& document) {
    const std::size_t end = start + static_cast<std::size_t>(BlockLength(stmt));
    for (; sign < end; sign = text.find('@', sign + 1)) {
        const int index = stmt.StartLine + static_cast<int>(sign - start);
        const int last = index < stmt.StartStmt ? stmt.EndUserComment : stmt.EndStmt;
        if (index <= last) text[sign] = 'e';
    }
    if (HasTriangle(stmt, document) && BlockIsFolded(stmt, document)) {
        text[start + static_cast<std::size_t>(stmt.StartRule - stmt.StartLine)] = '5';
    }
}

void AppendIntroduction(std::string& text, const Document& document) {
    text += ProofSlice(1, document.IntroEnd + 4, document);
    SwapElementSigns(text, 0, static_cast<std::size_t>(document.IntroEnd));
}

std::string LexError(int number) {
    return LexExpression(std::string(StoredText(number))).error;
}

// Reports the statements that can't be lexed, each in its turn; the last message stays.
void ReportDamagedStatements() {
    for (const int number : ShownBlocks) {
        if (number == Introduction) continue;
        const std::string error = LexError(number);
        if (error.empty()) continue;
        SetPrompt("PARSER ERROR: " + error);
        Beep("The text of line " + std::to_string(number) + " is damaged: " + error);
    }
}

struct Content {
    std::string text;
    std::vector<TextBlocks::Block> blocks;
    std::vector<int> numbers;  // of each block's statement
};

// Adds the blocks of the visible lines; those that stand side by side are copied at once.
void AppendVisible(Content& content, int firstLine, int lastLine, const Document& document,
                   int fontSize) {
    std::size_t start = content.text.size();
    for (int first = firstLine; first <= lastLine; ++first) {
        if (!At(first, document).Visible) continue;
        int last = first;
        while (last < lastLine && At(last + 1, document).Visible) ++last;
        content.text +=
            ProofSlice(At(first, document).StartLine, At(last, document).EndRule + 4, document);
        std::size_t sign = content.text.find('@', start);
        for (int number = first; number <= last; ++number) {
            const Statement& stmt = At(number, document);
            ShowSigns(content.text, start, stmt, sign, document);
            content.blocks.push_back({BlockLength(stmt), BlockKey(stmt, fontSize)});
            content.numbers.push_back(number);
            start += static_cast<std::size_t>(BlockLength(stmt));
        }
        first = last;
    }
}

Content ContentOf(int firstLine, int lastLine, const Document& document, int fontSize) {
    Content content;
    if (firstLine <= lastLine) {
        // More than they show, at most.
        const auto lines = static_cast<std::size_t>(lastLine - firstLine + 1);
        const int start = firstLine == 1 ? 1 : At(firstLine, document).StartLine;
        content.text.reserve(static_cast<std::size_t>(At(lastLine, document).EndRule + 5 - start));
        content.blocks.reserve(lines);
        content.numbers.reserve(lines);
    }
    if (firstLine == 1 && document.IntroEnd > 0) {
        AppendIntroduction(content.text, document);
        content.blocks.push_back({document.IntroEnd + 4, static_cast<std::uint64_t>(fontSize)});
        content.numbers.push_back(Introduction);
    }
    AppendVisible(content, firstLine, lastLine, document, fontSize);
    return content;
}

std::vector<FormatRun> RunsOf(int number, const Document& document, int fontSize) {
    return number == Introduction ? IntroductionRuns(document, fontSize)
                                  : StatementBlockRuns(number, document, fontSize);
}

std::vector<FormatRun> BlockRuns(int index) {
    return RunsOf(ShownBlocks[static_cast<std::size_t>(index)], Doc, StmtFontSize);
}

// --- what has changed since the last time

// What the display was built from. What the open document still shares with it looks the same.
struct Shown {
    Document document;
    int fontSize = 0;
    std::uint64_t revision = 0;  // of the surface then; another: something else has written to it
};
Shown LastShown;

// The lines at the head that look as they did, and those at the end.
struct Unchanged {
    int head = 0;
    int tail = 0;
};

Unchanged LinesThatLookTheSame() {
    const Document& old = LastShown.document;
    if (LastShown.fontSize != StmtFontSize || old.IntroEnd != IntroEnd ||
        LastShown.revision != Proof.RTB.ContentRevision()) {
        return {};
    }
    Unchanged lines{StmtTable.SharedHead(old.StmtTable), 0};
    if (lines.head == 0) return {};
    if (ProofText.SharesBytes(old.ProofText)) {
        if (ProofText.size() == old.ProofText.size()) {
            lines.tail = std::min(StmtTable.SharedTail(old.StmtTable), StmtCount - lines.head);
        }
        return lines;
    }
    const auto length = static_cast<std::size_t>(At(lines.head).EndRule);
    const bool same = ProofText.View().substr(0, length) == old.ProofText.View().substr(0, length);
    return same ? lines : Unchanged();
}

// Replaces the blocks of the lines between those that look the same.
void RedrawBetween(const Unchanged& same) {
    const int behind = StmtCount - same.tail + 1;
    Content content = ContentOf(same.head + 1, behind - 1, Doc, StmtFontSize);
    const auto first = std::upper_bound(ShownBlocks.begin(), ShownBlocks.end(), same.head);
    // Without lines at the end that look the same, old blocks may bear numbers that are gone.
    const auto last =
        same.tail > 0 ? std::lower_bound(first, ShownBlocks.end(), behind) : ShownBlocks.end();
    const auto firstBlock = static_cast<std::size_t>(first - ShownBlocks.begin());
    const auto lastBlock = static_cast<std::size_t>(last - ShownBlocks.begin());
    ShownBlocks.insert(ShownBlocks.erase(first, last), content.numbers.begin(),
                       content.numbers.end());
    Proof.RTB.SetBlocks(firstBlock, lastBlock, content.text, content.blocks);
}

void RedrawAll() {
    Content content = ContentOf(1, StmtCount, Doc, StmtFontSize);
    ShownBlocks = std::move(content.numbers);
    Proof.RTB.SetBlocks(content.text, content.blocks, BlockRuns);
}

// The first block that begins behind a place of the display, 1-based.
std::vector<int>::const_iterator FirstBlockBehind(int place, const Document& document) {
    return std::partition_point(ShownBlocks.begin(), ShownBlocks.end(), [&](int number) {
        return number == Introduction || At(number, document).ViewerStartLine <= place;
    });
}

// --- what it holds

// Is the surface the display, as it was last built?
bool IsLastShown(const RichTextBox& surface) {
    return &surface == &Proof.RTB && surface.ContentRevision() == LastShown.revision;
}

// A part of the display that was built from a document.
RichText PartOf(const Shown& shown, int start, int length) {
    const Document& document = shown.document;
    const Content content = ContentOf(1, document.StmtCount, document, shown.fontSize);
    TextBlocks blocks;
    blocks.SetBlocks(content.text, content.blocks, [&](int index) {
        const int number = content.numbers[static_cast<std::size_t>(index)];
        return RunsOf(number, document, shown.fontSize);
    });
    RichText part{
        content.text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(length)),
        blocks.RunsIn(start, start + length)};
    for (FormatRun& run : part.runs) run.start -= start;
    return part;
}

// Appends the bytes first to last of ProofText, if there are any.
void AppendSlice(std::string& plain, int first, int last, const Document& document) {
    if (first <= last) plain += ProofSlice(first, last, document);
}

// The same for a part of a block, without its triangle and the blank behind that.
void AppendPlain(std::string& plain, int first, int last, const Statement& stmt,
                 const Document& document) {
    const int sign = stmt.StartRule;
    if (!HasTriangle(stmt, document) || sign < first || sign > last) {
        return AppendSlice(plain, first, last, document);
    }
    AppendSlice(plain, first, sign - 1, document);
    const bool blank = ProofSlice(sign + 1, sign + 1, document) == " ";
    AppendSlice(plain, blank ? sign + 2 : sign + 1, last, document);
}

// Where two rows of runs that cover the same text differ first, in words.
std::string Difference(const std::vector<FormatRun>& shown, const std::vector<FormatRun>& rebuilt) {
    const auto differing =
        std::mismatch(shown.begin(), shown.end(), rebuilt.begin(), rebuilt.end()).first;
    if (differing == shown.end()) return "";
    return "the format shown at " + std::to_string(differing->start) +
           " differs from that of a rebuild";
}

}  // namespace

void ResetFonts() {
    const Unchanged same = LinesThatLookTheSame();
    same.head > 0 ? RedrawBetween(same) : RedrawAll();
    LastShown = {Doc, StmtFontSize, Proof.RTB.ContentRevision()};
    Proof.RTB.SelLength = 0;
    Proof.StatusLine.SelAlignment = Alignment::Center;
    if (StoredTextIsDamaged) ReportDamagedStatements();
}

void ResetDisplay() {
    ShownBlocks.clear();
    StoredTextIsDamaged = false;
    LastShown = {};
}

int ShownStmtAt(int place) {
    const auto behind = FirstBlockBehind(place, Doc);
    if (behind == ShownBlocks.begin()) return 0;
    const int number = *(behind - 1);
    return number != Introduction && place <= ViewerEndRule(At(number)) ? number : 0;
}

std::function<RichText()> LateSelection(const RichTextBox& surface) {
    if (!IsLastShown(surface)) return [part = surface.Selection()] { return part; };
    return [shown = LastShown, start = surface.GetSelStart(), length = surface.GetSelLength()] {
        return PartOf(shown, start, length);
    };
}

std::string PlainSelection(const RichTextBox& surface) {
    if (!IsLastShown(surface) || StoredTextIsDamaged) return PlainText(surface.Selection());
    const Document& document = LastShown.document;
    const int first = surface.GetSelStart() + 1;
    const int last = surface.GetSelStart() + surface.GetSelLength();
    std::string plain;
    plain.reserve(static_cast<std::size_t>(surface.GetSelLength()));
    AppendSlice(plain, first, std::min(last, FirstViewerStartLine(document) - 1), document);
    auto block = FirstBlockBehind(first, document);
    if (block != ShownBlocks.begin()) --block;
    for (; block != ShownBlocks.end(); ++block) {
        if (*block == Introduction) continue;
        const Statement& stmt = At(*block, document);
        const int offset = ViewOffset(stmt);
        if (last + offset < stmt.StartLine) break;
        AppendPlain(plain, std::max(first + offset, stmt.StartLine),
                    std::min(last + offset, stmt.StartLine + BlockLength(stmt) - 1), stmt,
                    document);
    }
    return plain;
}

std::string CheckDisplay() {
    const Content content = ContentOf(1, StmtCount, Doc, StmtFontSize);
    if (content.text != Proof.RTB.GetText()) {
        return "the display's text differs from that of a rebuild";
    }
    const int length = Proof.RTB.TextLength();
    TextBlocks rebuilt;
    rebuilt.SetBlocks(content.text, content.blocks, BlockRuns);
    return Difference(Proof.RTB.PeekAtRuns(), rebuilt.RunsIn(0, length));
}

void CheckStoredText() {
    StoredTextIsDamaged = false;
    for (int number = 1; number <= StmtCount && !StoredTextIsDamaged; ++number) {
        StoredTextIsDamaged = !Lexes(StoredText(number));
    }
}

}  // namespace tessaryn
