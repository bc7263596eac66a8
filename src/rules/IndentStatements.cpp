// The indentation that a block gets when it closes.
#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

#include "document/Document.h"
#include "rules/modConclusion.h"

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
int AppendBlock(std::string& text, Statement& stmt) {
    const Statement old = stmt;
    text += '\t';
    int tabs = 1;
    int numberLine = old.StartLine;
    if (old.EndUserComment > 0) {
        numberLine = old.EndUserComment + 5;
        tabs += AppendIndented(text, ProofSlice(old.StartLine, old.EndUserComment));
        stmt.EndUserComment += tabs;
        text += ProofSlice(old.EndUserComment + 1, numberLine - 1);
        text += '\t';
        ++tabs;
    }
    text += ProofSlice(numberLine, old.StartStmt - 1);
    stmt.StartStmt += tabs;
    tabs += AppendIndented(text, ProofSlice(old.StartStmt, old.EndStmt));
    stmt.EndStmt += tabs;
    text += ProofSlice(old.EndStmt + 1, old.StartRule - 1);
    text += '\t';
    ++tabs;
    stmt.StartRule += tabs;
    stmt.EndRule += tabs;
    text += ProofSlice(old.StartRule, old.EndRule + 4);
    return tabs;
}

}  // namespace

void IndentStatements(int first, int last) {
    std::string text;
    text.reserve(ProofText.size() + ProofText.size() / 8);
    text.append(ProofText.View(), 0, static_cast<std::size_t>(At(first).StartLine - 1));
    const auto rest = static_cast<std::size_t>(At(last).EndRule + 4);
    int shift = 0;
    int viewShift = 0;
    for (int line = first; line <= StmtCount; ++line) {
        Statement& stmt = EditAt(line);
        const int tabs = line <= last ? AppendBlock(text, stmt) : 0;
        ShiftIndexes(stmt, shift);
        if (stmt.Visible) stmt.ViewerStartLine += viewShift;
        shift += tabs;
        if (stmt.Visible) viewShift += tabs;
    }
    text.append(ProofText.View(), rest);
    ProofText = std::move(text);
}

}  // namespace tessaryn
