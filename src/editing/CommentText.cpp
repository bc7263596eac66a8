#include "editing/CommentText.h"

#include "document/Document.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

constexpr const char* TwoLineEnds = "\r\n\r\n";

// The TABs ahead of each line of a statement's comment: those that the old one has.
std::string Indentation(const Statement& stmt) {
    if (stmt.EndUserComment == 0) return std::string(static_cast<std::size_t>(Depth(stmt)), '\t');
    const std::string_view comment = ProofSlice(stmt.StartLine, stmt.EndUserComment);
    return std::string(comment.substr(0, comment.find_first_not_of('\t')));
}

std::string Indented(const std::string& text, const std::string& tabs) {
    std::string indented = tabs;
    for (const char c : text) {
        indented += c;
        if (c == '\n') indented += tabs;
    }
    return indented;
}

// Puts a text in the place of `removed` bytes and moves the indexes of the statements from
// firstMoved on.
void ReplaceAt(int start, int removed, const std::string& text, int firstMoved) {
    ProofText.Replace(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(removed), text);
    const int shift = Length(text) - removed;
    for (int line = firstMoved; line <= StmtCount; ++line) ShiftIndexes(EditAt(line), shift);
}

}  // namespace

std::string Introduction() {
    return IntroEnd > 0 ? std::string(ProofSlice(1, IntroEnd)) : "";
}

std::string CommentOf(int line) {
    const Statement& stmt = At(line);
    if (stmt.EndUserComment == 0) return "";
    std::string text(ProofSlice(stmt.StartLine, stmt.EndUserComment));
    RemoveTabs(text);
    return text;
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
    if (At(line).EndUserComment == 0 && text.empty()) return;
    BackUpUndo();
    Statement& stmt = EditAt(line);
    const int start = stmt.StartLine;
    const int removed = stmt.EndUserComment == 0 ? 0 : stmt.EndUserComment + 5 - start;
    const std::string head = text.empty() ? "" : Indented(text, Indentation(stmt)) + TwoLineEnds;
    ReplaceAt(start, removed, head, line);
    stmt.StartLine = start;
    stmt.EndUserComment = text.empty() ? 0 : start + Length(head) - 5;
    RelayoutViewer();
}

}  // namespace tessaryn
