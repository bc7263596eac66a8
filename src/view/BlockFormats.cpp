#include "view/BlockFormats.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "expr/Lex.h"
#include "expr/NameList.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

CharFormat Format(int size, Colour colour, bool bold = false) {
    return {StatementFont, size, colour, bold};
}

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
void AddCommentRuns(RunBuilder& runs, std::string_view text, int fontSize) {
    const CharFormat plain = Format(fontSize, CommentBlue);
    CharFormat symbol = plain;
    symbol.Font = SymbolFont;
    for (std::size_t at = text.find('@'); at != std::string_view::npos;
         at = text.find('@', at + 1)) {
        const int place = static_cast<int>(at);
        runs.Until(place, plain);
        runs.Until(place + 1, symbol);
    }
    runs.Until(static_cast<int>(text.size()), plain);
}

// Colours and fonts of a statement's text, a format for each byte. Unformatted if it can't be
// lexed.
std::vector<CharFormat> StatementFormats(const Statement& stmt, std::string_view text,
                                         const TokenList& tokens, int fontSize) {
    std::vector<CharFormat> formats(text.size(), Format(fontSize, Black));
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

void AddStatementRuns(RunBuilder& runs, const Statement& stmt, std::string_view text,
                      int fontSize) {
    Expression lexed = LexExpression(std::string(text));
    if (!lexed.error.empty()) lexed.tokens.resize(1);
    const std::vector<CharFormat> formats = StatementFormats(stmt, text, lexed.tokens, fontSize);
    int place = stmt.StartStmt - stmt.StartLine;
    for (const CharFormat& format : formats) runs.Until(++place, format);
}

void AddAnnotationRuns(RunBuilder& runs, const Statement& stmt, bool triangle, int fontSize) {
    const int start = stmt.StartRule - stmt.StartLine;
    const int ruleSize = fontSize - 2;
    if (triangle) {
        runs.Until(start + 1, {TriangleFont, ruleSize, Black, false});
        runs.Until(start + 2, Format(fontSize, Black));
    }
    runs.Until(stmt.EndRule - stmt.StartLine + 1, Format(ruleSize, FaintGrey));
}

}  // namespace

bool HasTriangle(const Statement& stmt, const Document& document) {
    return IsConclusion(stmt) && ProofSlice(stmt.StartRule, stmt.StartRule, document) == "4";
}

std::vector<FormatRun> StatementBlockRuns(int number, const Document& document, int fontSize) {
    const Statement& stmt = At(number, document);
    const CharFormat plain = Format(fontSize, Black);
    RunBuilder runs;
    if (stmt.EndUserComment > 0) {
        AddCommentRuns(runs, ProofSlice(stmt.StartLine, stmt.EndUserComment, document), fontSize);
    }
    runs.Until(NumberStart(stmt) - stmt.StartLine, plain);
    runs.Until(stmt.StartStmt - 1 - stmt.StartLine,
               Format(fontSize, Depth(stmt) > 0 ? FaintGrey : Black, stmt.Highlight));
    runs.Until(stmt.StartStmt - stmt.StartLine, plain);
    AddStatementRuns(runs, stmt, StoredText(number, document), fontSize);
    runs.Until(stmt.StartRule - stmt.StartLine, plain);
    AddAnnotationRuns(runs, stmt, HasTriangle(stmt, document), fontSize);
    runs.Until(BlockLength(stmt), plain);
    return runs.Take();
}

std::vector<FormatRun> IntroductionRuns(const Document& document, int fontSize) {
    RunBuilder runs;
    AddCommentRuns(runs, ProofSlice(1, document.IntroEnd, document), fontSize);
    runs.Until(document.IntroEnd + 4, Format(fontSize, Black));
    return runs.Take();
}

}  // namespace tessaryn
