#include "document/Invariants.h"

#include <cstdint>
#include <unordered_set>

#include "document/Document.h"
#include "document/RuleNames.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "text/Utf8.h"

namespace tessaryn {
namespace {

// Collects the first complaint.
class Complaint {
  public:
    void Unless(bool holds, int line, const char* what) {
        if (holds || !text_.empty()) return;
        text_ = line > 0 ? "Line " + std::to_string(line) + ": " + what : what;
    }
    bool Any() const { return !text_.empty(); }
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

// --- structure

// Is the 1-based index in the middle of a character of the text?
bool SplitsCharacter(std::string_view text, std::int64_t index) {
    const auto at = static_cast<std::size_t>(index - 1);
    return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

// Six indexes in order, with room between them for what stands there: a comment's line ends, the
// number and its TAB, the line end ahead of the annotation, the line ends behind it.
void CheckIndexes(Complaint& complaint, int line, const Statement& stmt, std::int64_t expectedStart,
                  std::string_view text, bool ascii) {
    const auto end = static_cast<std::int64_t>(text.size());
    complaint.Unless(stmt.StartLine == expectedStart, line, "StartLine does not follow on");
    complaint.Unless(stmt.EndUserComment == 0 || stmt.EndUserComment >= stmt.StartLine, line,
                     "comment out of place");
    const std::int64_t numberLine =
        stmt.EndUserComment > 0 ? std::int64_t{stmt.EndUserComment} + 5 : stmt.StartLine;
    const std::int64_t depth = std::int64_t{stmt.StartRule} - stmt.EndStmt - 4;
    complaint.Unless(depth >= 0, line, "negative indentation");
    complaint.Unless(stmt.StartStmt >= numberLine + depth + 2, line, "no room for the number");
    complaint.Unless(stmt.EndStmt >= stmt.StartStmt, line, "empty statement text");
    complaint.Unless(stmt.EndRule >= stmt.StartRule, line, "empty annotation");
    complaint.Unless(std::int64_t{stmt.EndRule} + 4 <= end, line, "ends behind the text");
    if (complaint.Any() || ascii) return;
    for (const std::int64_t cut :
         {std::int64_t{stmt.StartLine}, std::int64_t{stmt.EndUserComment} + 1, numberLine,
          numberLine + depth, std::int64_t{stmt.StartStmt} - 1, std::int64_t{stmt.StartStmt},
          std::int64_t{stmt.EndStmt} + 1, std::int64_t{stmt.StartRule},
          std::int64_t{stmt.EndRule} + 1, std::int64_t{stmt.EndRule} + 5}) {
        complaint.Unless(!SplitsCharacter(text, cut), line, "an index splits a character");
    }
}

bool IsBackward(int reference, int line) {
    return reference >= 0 && reference < line;
}

// A closed Premise and its Conclusion point at each other; all else points backward.
void CheckReferences(Complaint& complaint, int line, const StatementTable& table) {
    const Statement& stmt = table[line];
    complaint.Unless(IsRuleNumber(stmt.Rule), line, "no such rule");
    complaint.Unless(IsBackward(stmt.Arg2, line), line, "Arg2 does not point backward");
    if (IsClosedPremise(stmt)) {
        complaint.Unless(stmt.Arg1 > line && stmt.Arg1 <= table.Count() &&
                             IsConclusion(table[stmt.Arg1]) && table[stmt.Arg1].Arg1 == line,
                         line, "not closed by its Conclusion");
        return;
    }
    complaint.Unless(IsBackward(stmt.Arg1, line), line, "Arg1 does not point backward");
    if (complaint.Any() || !IsConclusion(stmt)) return;
    complaint.Unless(
        stmt.Arg1 > 0 && table[stmt.Arg1].Rule == Rule::Premise && table[stmt.Arg1].Arg1 == line,
        line, "Conclusion without its Premise");
}

// The blocks follow each other from the introduction to the end of the text. A block written later
// would not stand right behind the last one otherwise, and its file could not be read back.
void CheckStructure(Complaint& complaint, const Document& document) {
    const std::string_view text = document.ProofText;
    const auto behind = static_cast<std::int64_t>(text.size()) + 1;
    const int count = document.StmtTable.Count();
    complaint.Unless(document.StmtCount == count, 0, "StmtCount differs from the table's size");
    const bool ascii = AsciiEnd(text, 0) == text.size();
    std::int64_t start = count > 0 ? document.StmtTable[1].StartLine : behind;
    complaint.Unless(start == 1 || start >= 5, 0, "no room for the introduction's line ends");
    for (int line = 1; line <= count && !complaint.Any(); ++line) {
        const Statement& stmt = document.StmtTable[line];
        CheckReferences(complaint, line, document.StmtTable);
        CheckIndexes(complaint, line, stmt, start, text, ascii);
        start = std::int64_t{stmt.EndRule} + 5;
    }
    complaint.Unless(start == behind, 0, "text behind the last statement");
}

// What the program has worked out beside records and text.
void CheckValues(Complaint& complaint) {
    complaint.Unless(IsUtf8(ProofText), 0, "the text is no UTF-8");
    const int start = StmtCount > 0 ? StmtTable[1].StartLine : Length(ProofText) + 1;
    // An empty introduction leaves its line ends ahead of statement 1.
    complaint.Unless(IntroEnd > 0 ? start == IntroEnd + 5 : start == 1 || start == 5, 0,
                     "introduction out of place");
    int viewStart = FirstViewerStartLine();
    for (int line = 1; line <= StmtCount && !complaint.Any(); ++line) {
        const Statement& stmt = At(line);
        if (!stmt.Visible) continue;
        complaint.Unless(stmt.ViewerStartLine == viewStart, line, "ViewerStartLine");
        viewStart += BlockLength(stmt);
    }
}

// --- content

bool Slice(int first, const std::string& expected) {
    const int last = first + Length(expected) - 1;
    return last <= Length(ProofText) && ProofSlice(first, last) == expected;
}

void CheckLayout(Complaint& complaint, int line, const Statement& stmt) {
    const std::string number = std::to_string(line);
    const std::string indent(static_cast<std::size_t>(Depth(stmt)), '\t');
    complaint.Unless(stmt.EndUserComment == 0 || Slice(stmt.EndUserComment + 1, "\r\n\r\n"), line,
                     "no line ends behind the comment");
    complaint.Unless(Slice(NumberStart(stmt) - Depth(stmt), indent + number + "\t"), line,
                     "number out of place");
    complaint.Unless(stmt.StartStmt == NumberStart(stmt) + Length(number) + 1, line,
                     "StartStmt is not behind the number");
    complaint.Unless(Slice(stmt.EndStmt + 1, "\r\n\t" + indent), line, "annotation out of place");
    complaint.Unless(
        ProofSlice(stmt.StartRule, stmt.EndRule) == RuleAnnotation(stmt.Rule, stmt.Arg1, stmt.Arg2),
        line, "annotation differs from rule and references");
    complaint.Unless(Slice(stmt.EndRule + 1, "\r\n\r\n"), line, "no line ends behind the block");
}

// Within a block every line lies at least one level deeper than the Conclusion.
void CheckNesting(Complaint& complaint) {
    std::vector<int> ends;
    for (int line = 1; line <= StmtCount && !complaint.Any(); ++line) {
        const Statement& stmt = At(line);
        while (!ends.empty() && ends.back() <= line) ends.pop_back();
        if (IsClosedPremise(stmt)) {
            complaint.Unless(ends.empty() || stmt.Arg1 < ends.back(), line, "blocks cross");
            ends.push_back(stmt.Arg1);
        }
        complaint.Unless(Depth(stmt) == static_cast<int>(ends.size()), line,
                         "indentation differs from the blocks around it");
    }
}

bool IsNameList(const std::string& list) {
    if (list.empty()) return true;
    return list.size() > 2 && list.front() == ' ' && list.back() == ' ' &&
           list.find("  ") == std::string::npos;
}

// Texts that need not be parsed again, each with its FreeVars: the check runs after every command.
std::unordered_set<std::string> GoodTexts;

void CheckText(Complaint& complaint, int line, const Statement& stmt) {
    complaint.Unless(IsNameList(stmt.FixedVars), line, "FixedVars is no name list");
    const std::string known = StmtText(line) + stmt.FreeVars.Text();
    if (GoodTexts.contains(known)) return;
    if (GoodTexts.size() > 10000) GoodTexts.clear();
    const Expression parsed = ParseExpression(StmtText(line));
    complaint.Unless(parsed.error.empty(), line, "the text does not parse");
    if (complaint.Any()) return;
    complaint.Unless(PrintExpression(parsed) == parsed.text, line, "the text is not canonical");
    complaint.Unless(FreeVarsOf(parsed) == stmt.FreeVars, line, "FreeVars differs from the text");
    if (!complaint.Any()) GoodTexts.insert(known);
}

void CheckContent(Complaint& complaint) {
    complaint.Unless(IntroEnd <= 0 || Slice(IntroEnd + 1, "\r\n\r\n"), 0,
                     "no line ends behind the introduction");
    for (int line = 1; line <= StmtCount && !complaint.Any(); ++line) {
        CheckLayout(complaint, line, At(line));
        CheckText(complaint, line, At(line));
    }
    CheckNesting(complaint);
}

}  // namespace

std::string StructureFault(const Document& document) {
    Complaint complaint;
    CheckStructure(complaint, document);
    return complaint.Text();
}

std::string CheckDocument() {
    Complaint complaint;
    CheckStructure(complaint, Doc);
    if (!complaint.Any()) CheckValues(complaint);
    if (complaint.Any() || Doc.Content == ContentState::Disagrees) return complaint.Text();
    CheckContent(complaint);
    if (Doc.Content == ContentState::Agrees) return complaint.Text();
    Doc.Content = complaint.Any() ? ContentState::Disagrees : ContentState::Agrees;
    return "";
}

void ResetDocumentChecks() {
    GoodTexts.clear();
}

}  // namespace tessaryn
