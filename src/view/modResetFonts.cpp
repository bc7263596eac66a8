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
#include "expr/NameList.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

constexpr int Introduction = 0;  // stands for the introduction where a statement number is meant

std::vector<int> ShownBlocks;      // statement number of each block of the surface
bool StoredTextIsDamaged = false;  // some statement can't be lexed

CharFormat Format(int size, Colour colour, bool bold = false) {
    return {StatementFont, size, colour, bold};
}

// The "4" ahead of a Conclusion's annotation; only a damaged file has none.
bool HasTriangle(const Statement& stmt) {
    return IsConclusion(stmt) && ProofSlice(stmt.StartRule, stmt.StartRule) == "4";
}

bool BlockIsFolded(const Statement& conclusion) {
    return !At(conclusion.Arg1).Visible;
}

void SwapElementSigns(std::string& text, std::size_t first, std::size_t last) {
    for (std::size_t at = text.find('@', first); at < last; at = text.find('@', at + 1)) {
        text[at] = 'e';
    }
}

// --- runs of one block

// Lays runs side by side, joining neighbours of one format.
class RunBuilder {
  public:
    // Continues the block to `end` (0-based, relative) in one format.
    void Until(int end, const CharFormat& format) {
        if (end <= at_) return;
        if (!runs_.empty() && runs_.back().format == format) {
            runs_.back().length += end - at_;
        } else {
            runs_.push_back({at_, end - at_, format});
        }
        at_ = end;
    }
    std::vector<FormatRun> Take() { return std::move(runs_); }

  private:
    std::vector<FormatRun> runs_;
    int at_ = 0;
};

// Free text: one format, but for its element signs.
void AddCommentRuns(RunBuilder& runs, std::string_view text, int start) {
    const CharFormat plain = Format(StmtFontSize, CommentBlue);
    CharFormat symbol = plain;
    symbol.Font = SymbolFont;
    for (std::size_t at = text.find('@'); at != std::string_view::npos;
         at = text.find('@', at + 1)) {
        const int place = start + static_cast<int>(at);
        runs.Until(place, plain);
        runs.Until(place + 1, symbol);
    }
    runs.Until(start + static_cast<int>(text.size()), plain);
}

// Colours and fonts of a statement's text, a format for each byte. Unformatted if it can't be
// lexed.
std::vector<CharFormat> StatementFormats(const Statement& stmt, std::string_view text,
                                         const TokenList& tokens) {
    std::vector<CharFormat> formats(text.size(), Format(StmtFontSize, Black));
    const NameSet freeNames(stmt.FreeVars);
    const NameSet fixedNames(stmt.FixedVars);
    const NameSet spareNames(stmt.SpareVars);
    for (std::size_t k = 1; k < tokens.size(); ++k) {
        const TokenRec& token = tokens[k];
        const auto first = static_cast<std::size_t>(token.Position) - 1;
        if (freeNames.Holds(token.Token)) {
            CharFormat format = formats[first];
            format.Color = fixedNames.Holds(token.Token) ? FixedRed : FreeGreen;
            format.Bold = spareNames.Holds(token.Token);
            std::fill_n(formats.begin() + token.Position - 1, token.Token.size(), format);
        } else if (token.Token == "@") {
            // The blanks on both sides go with the sign.
            const bool blankBehind = first + 1 < text.size() && text[first + 1] == ' ';
            const std::size_t from = blankBehind && first > 0 ? first - 1 : first;
            const std::size_t to = blankBehind ? first + 1 : first;
            for (std::size_t i = from; i <= to; ++i) formats[i].Font = SymbolFont;
        }
    }
    return formats;
}

void AddStatementRuns(RunBuilder& runs, const Statement& stmt, int number) {
    const std::string_view text = StoredText(number);
    Expression lexed = LexExpression(std::string(text));
    if (!lexed.error.empty()) lexed.tokens.resize(1);
    const std::vector<CharFormat> formats = StatementFormats(stmt, text, lexed.tokens);
    int place = stmt.StartStmt - stmt.StartLine;
    for (const CharFormat& format : formats) runs.Until(++place, format);
}

void AddAnnotationRuns(RunBuilder& runs, const Statement& stmt) {
    const int start = stmt.StartRule - stmt.StartLine;
    if (HasTriangle(stmt)) {
        runs.Until(start + 1, {TriangleFont, RuleFontSize, Black, false});
        runs.Until(start + 2, Format(StmtFontSize, Black));
    }
    runs.Until(stmt.EndRule - stmt.StartLine + 1, Format(RuleFontSize, FaintGrey));
}

std::vector<FormatRun> StatementBlockRuns(int number) {
    const Statement& stmt = At(number);
    const CharFormat plain = Format(StmtFontSize, Black);
    RunBuilder runs;
    if (stmt.EndUserComment > 0) {
        AddCommentRuns(runs, ProofSlice(stmt.StartLine, stmt.EndUserComment), 0);
    }
    runs.Until(NumberStart(stmt) - stmt.StartLine, plain);
    runs.Until(stmt.StartStmt - 1 - stmt.StartLine,
               Format(StmtFontSize, Depth(stmt) > 0 ? FaintGrey : Black, stmt.Highlight));
    runs.Until(stmt.StartStmt - stmt.StartLine, plain);
    AddStatementRuns(runs, stmt, number);
    runs.Until(stmt.StartRule - stmt.StartLine, plain);
    AddAnnotationRuns(runs, stmt);
    runs.Until(BlockLength(stmt), plain);
    return runs.Take();
}

std::vector<FormatRun> IntroductionRuns() {
    RunBuilder runs;
    AddCommentRuns(runs, ProofSlice(1, IntroEnd), 0);
    runs.Until(IntroEnd + 4, Format(StmtFontSize, Black));
    return runs.Take();
}

std::vector<FormatRun> BlockRuns(int index) {
    const int number = ShownBlocks[static_cast<std::size_t>(index)];
    return number == Introduction ? IntroductionRuns() : StatementBlockRuns(number);
}

// --- the surface's text and blocks

// Mixes a value into a key (the step of the FNV-1a hash, over whole values).
void Mix(std::uint64_t& key, std::size_t value) {
    key = (key ^ value) * 0x100000001B3ULL;
}

// All that a block's formats depend on besides its bytes.
std::uint64_t BlockKey(const Statement& stmt) {
    std::uint64_t key = 0xCBF29CE484222325ULL;
    for (const int part : {stmt.EndUserComment > 0 ? stmt.EndUserComment - stmt.StartLine : -1,
                           stmt.StartStmt - stmt.StartLine, stmt.EndStmt - stmt.StartLine,
                           stmt.StartRule - stmt.StartLine, stmt.Rule, StmtFontSize}) {
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
void ShowSigns(std::string& text, std::size_t start, const Statement& stmt, std::size_t& sign) {
    const std::size_t end = start + static_cast<std::size_t>(BlockLength(stmt));
    for (; sign < end; sign = text.find('@', sign + 1)) {
        const int index = stmt.StartLine + static_cast<int>(sign - start);
        const int last = index < stmt.StartStmt ? stmt.EndUserComment : stmt.EndStmt;
        if (index <= last) text[sign] = 'e';
    }
    if (HasTriangle(stmt) && BlockIsFolded(stmt)) {
        text[start + static_cast<std::size_t>(stmt.StartRule - stmt.StartLine)] = '5';
    }
}

void AppendIntroduction(std::string& text) {
    text += ProofSlice(1, IntroEnd + 4);
    SwapElementSigns(text, 0, static_cast<std::size_t>(IntroEnd));
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
void AppendVisible(Content& content, int firstLine, int lastLine) {
    std::size_t start = content.text.size();
    for (int first = firstLine; first <= lastLine; ++first) {
        if (!At(first).Visible) continue;
        int last = first;
        while (last < lastLine && At(last + 1).Visible) ++last;
        content.text += ProofSlice(At(first).StartLine, At(last).EndRule + 4);
        std::size_t sign = content.text.find('@', start);
        for (int number = first; number <= last; ++number) {
            const Statement& stmt = At(number);
            ShowSigns(content.text, start, stmt, sign);
            content.blocks.push_back({BlockLength(stmt), BlockKey(stmt)});
            content.numbers.push_back(number);
            start += static_cast<std::size_t>(BlockLength(stmt));
        }
        first = last;
    }
}

Content ContentOf(int firstLine, int lastLine) {
    Content content;
    if (firstLine <= lastLine) {
        // More than they show, at most.
        const std::size_t lines = static_cast<std::size_t>(lastLine - firstLine + 1);
        const int start = firstLine == 1 ? 1 : At(firstLine).StartLine;
        content.text.reserve(static_cast<std::size_t>(At(lastLine).EndRule + 5 - start));
        content.blocks.reserve(lines);
        content.numbers.reserve(lines);
    }
    if (firstLine == 1 && IntroEnd > 0) {
        AppendIntroduction(content.text);
        content.blocks.push_back({IntroEnd + 4, static_cast<std::uint64_t>(StmtFontSize)});
        content.numbers.push_back(Introduction);
    }
    AppendVisible(content, firstLine, lastLine);
    return content;
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
    Content content = ContentOf(same.head + 1, behind - 1);
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
    Content content = ContentOf(1, StmtCount);
    ShownBlocks = std::move(content.numbers);
    Proof.RTB.SetBlocks(content.text, content.blocks, BlockRuns);
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
    const auto behind = std::partition_point(
        ShownBlocks.begin(), ShownBlocks.end(),
        [&](int number) { return number == Introduction || At(number).ViewerStartLine <= place; });
    if (behind == ShownBlocks.begin()) return 0;
    const int number = *(behind - 1);
    return number != Introduction && place <= ViewerEndRule(At(number)) ? number : 0;
}

std::string CheckDisplay() {
    const Content content = ContentOf(1, StmtCount);
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
