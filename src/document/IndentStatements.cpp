// The indentation that a block gets when it closes.
#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "document/Writer.h"

namespace tessaryn {
namespace {

// Appends a stretch of text with a TAB behind each LF. Gives the number of TABs.
int AppendIndented(std::string& text, std::string_view stretch) {
    int tabs = 0;
    for (const char c : stretch) {
        text += c;
        if (c != '\n') continue;
        text += '\t';
        ++tabs;
    }
    return tabs;
}

// Appends the block of a statement with its TABs and moves the indexes behind each. Gives the
// number of TABs. The indexes still count from the old start of the block.
int AppendBlock(std::string& text, Statement& stmt, const Document& document) {
    const Statement old = stmt;
    text += '\t';
    int tabs = 1;
    int numberLine = old.StartLine;
    if (old.EndUserComment > 0) {
        numberLine = old.EndUserComment + 5;
        tabs += AppendIndented(text, ProofSlice(old.StartLine, old.EndUserComment, document));
        stmt.EndUserComment += tabs;
        text += ProofSlice(old.EndUserComment + 1, numberLine - 1, document);
        text += '\t';
        ++tabs;
    }
    text += ProofSlice(numberLine, old.StartStmt - 1, document);
    stmt.StartStmt += tabs;
    tabs += AppendIndented(text, ProofSlice(old.StartStmt, old.EndStmt, document));
    stmt.EndStmt += tabs;
    text += ProofSlice(old.EndStmt + 1, old.StartRule - 1, document);
    text += '\t';
    ++tabs;
    stmt.StartRule += tabs;
    stmt.EndRule += tabs;
    text += ProofSlice(old.StartRule, old.EndRule + 4, document);
    return tabs;
}

}  // namespace

void IndentStatements(int first, int last, Document& document) {
    std::string text;
    text.reserve(document.ProofText.size() + document.ProofText.size() / 8);
    text.append(document.ProofText.View(), 0,
                static_cast<std::size_t>(At(first, document).StartLine - 1));
    const auto rest = static_cast<std::size_t>(At(last, document).EndRule + 4);
    int shift = 0;
    int viewShift = 0;
    for (int line = first; line <= document.StmtCount; ++line) {
        Statement& stmt = EditAt(line, document);
        const int tabs = line <= last ? AppendBlock(text, stmt, document) : 0;
        ShiftIndexes(stmt, shift);
        if (stmt.Visible) stmt.ViewerStartLine += viewShift;
        shift += tabs;
        if (stmt.Visible) viewShift += tabs;
    }
    text.append(document.ProofText.View(), rest);
    document.ProofText = std::move(text);
}

}  // namespace tessaryn
