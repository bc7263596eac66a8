#include "view/CommentText.h"

#include "document/Statement.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

constexpr const char* TwoLineEnds = "\r\n\r\n";

Statement& At(int number) {
    return StmtTable[static_cast<std::size_t>(number)];
}

int Length(const std::string& text) {
    return static_cast<int>(text.size());
}

std::string Indented(const std::string& text, int depth) {
    const std::string tabs(static_cast<std::size_t>(depth), '\t');
    std::string indented = tabs;
    for (const char c : text) {
        indented += c;
        if (c == '\n') indented += tabs;
    }
    return indented;
}

// TABs beyond the indentation are the author's own.
std::string Outdented(std::string_view text, int depth) {
    std::string outdented;
    int toDrop = depth;
    for (const char c : text) {
        if (c == '\t' && toDrop > 0) {
            --toDrop;
            continue;
        }
        outdented += c;
        toDrop = c == '\n' ? depth : 0;
    }
    return outdented;
}

// Puts a text in the place of `removed` bytes and moves the indexes of the statements from
// firstMoved on.
void ReplaceAt(int start, int removed, const std::string& text, int firstMoved) {
    ProofText.replace(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(removed), text);
    const int shift = Length(text) - removed;
    for (int line = firstMoved; line <= StmtCount; ++line) ShiftIndexes(At(line), shift);
}

}  // namespace

std::string Introduction() {
    return IntroEnd > 0 ? std::string(ProofSlice(1, IntroEnd)) : "";
}

std::string CommentOf(int line) {
    const Statement& stmt = At(line);
    if (stmt.EndUserComment == 0) return "";
    return Outdented(ProofSlice(stmt.StartLine, stmt.EndUserComment), Depth(stmt));
}

void SetIntroduction(const std::string& text) {
    if (StmtCount > 0 && text.empty() && IntroEnd <= 0) return;
    BackUpUndo();
    IntroEnd = Length(text);
    if (StmtCount == 0) {
        ProofText = text + TwoLineEnds;
    } else {
        ReplaceAt(1, At(1).StartLine - 1, text.empty() ? "" : text + TwoLineEnds, 1);
        RelayoutViewer();
    }
}

void SetComment(int line, const std::string& text) {
    Statement& stmt = At(line);
    if (stmt.EndUserComment == 0 && text.empty()) return;
    BackUpUndo();
    const int start = stmt.StartLine;
    const int removed = stmt.EndUserComment == 0 ? 0 : stmt.EndUserComment + 5 - start;
    const std::string head = text.empty() ? "" : Indented(text, Depth(stmt)) + TwoLineEnds;
    ReplaceAt(start, removed, head, line);
    stmt.StartLine = start;
    stmt.EndUserComment = text.empty() ? 0 : start + Length(head) - 5;
    RelayoutViewer();
}

}  // namespace tessaryn
