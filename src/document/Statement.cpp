#include "document/Document.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "document/RuleNames.h"

namespace tessaryn {

Document CopyForAnotherThread() {
    Document copy = Doc;
    copy.ProofText = std::string(Doc.ProofText.View());  // shared bytes may move as they grow
    return copy;
}

void ClearDocument() {
    Doc = {};
}

int Depth(const Statement& stmt) {
    return stmt.StartRule - stmt.EndStmt - 4;
}

int BlockLength(const Statement& stmt) {
    return stmt.EndRule - stmt.StartLine + 5;
}

int ViewOffset(const Statement& stmt) {
    return stmt.StartLine - stmt.ViewerStartLine;
}

int NumberStart(const Statement& stmt) {
    const int line = stmt.EndUserComment > 0 ? stmt.EndUserComment + 5 : stmt.StartLine;
    return line + Depth(stmt);
}

int ViewerEndRule(const Statement& stmt) {
    return stmt.EndRule - ViewOffset(stmt);
}

int FirstViewerStartLine(const Document& document) {
    return document.IntroEnd > 0 ? document.IntroEnd + 5 : 1;
}

void ShiftIndexes(Statement& stmt, int shift) {
    stmt.StartLine += shift;
    if (stmt.EndUserComment > 0) stmt.EndUserComment += shift;
    stmt.StartStmt += shift;
    stmt.EndStmt += shift;
    stmt.StartRule += shift;
    stmt.EndRule += shift;
}

std::string_view ProofSlice(int first, int last, const Document& document) {
    return document.ProofText.View().substr(static_cast<std::size_t>(first - 1),
                                            static_cast<std::size_t>(last - first + 1));
}

std::string_view StoredText(int number, const Document& document) {
    const Statement& stmt = At(number, document);
    return ProofSlice(stmt.StartStmt, stmt.EndStmt, document);
}

void RemoveTabs(std::string& text) {
    std::erase(text, '\t');
}

std::string StmtText(int number, const Document& document) {
    std::string text(StoredText(number, document));
    RemoveTabs(text);
    return text;
}

void AppendNumber(std::string& text, int number) {
    std::array<char, 12> digits{};
    text.append(digits.data(), std::to_chars(digits.begin(), digits.end(), number).ptr);
}

void AppendRuleAnnotation(std::string& text, int rule, int arg1, int arg2) {
    const auto refer = [&text](int line) {
        text += ", ";
        AppendNumber(text, line);
    };
    if (rule == Rule::Conclusion) text += "4 ";
    text += RuleName(rule);
    if (arg1 > 0 && rule != Rule::Premise) refer(arg1);
    if (arg2 > 0) refer(arg2);
}

std::string RuleAnnotation(int rule, int arg1, int arg2) {
    std::string text;
    AppendRuleAnnotation(text, rule, arg1, arg2);
    return text;
}

void SetVisible(int line, bool visible) {
    if (At(line).Visible != visible) EditAt(line).Visible = visible;
}

void RelayoutViewer() {
    int start = FirstViewerStartLine();
    for (int line = 1; line <= StmtCount; ++line) {
        if (!At(line).Visible) continue;
        if (At(line).ViewerStartLine != start) EditAt(line).ViewerStartLine = start;
        start += BlockLength(At(line));
    }
}

}  // namespace tessaryn
