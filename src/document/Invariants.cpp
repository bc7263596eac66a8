#include "document/Invariants.h"

#include <unordered_set>

#include "document/Document.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "mainwindow/RuleModes.h"

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

bool Slice(int first, const std::string& expected) {
    const int last = first + static_cast<int>(expected.size()) - 1;
    return first >= 1 && last <= static_cast<int>(ProofText.size()) &&
           ProofSlice(first, last) == expected;
}

// The first byte of statement 1. An empty introduction accepted without statements leaves its line
// ends ahead of it.
int ExpectedStart() {
    if (IntroEnd > 0) return IntroEnd + 5;
    // A comment of statement 1 may begin with line ends as well.
    const bool startsBehind = StmtCount > 0 && StmtTable[1].StartLine == 5;
    return startsBehind && ProofText.starts_with("\r\n\r\n") ? 5 : 1;
}

void CheckIndexes(Complaint& complaint, int line, const Statement& stmt, int expectedStart) {
    const std::string number = std::to_string(line);
    const int depth = Depth(stmt);
    complaint.Unless(stmt.StartLine == expectedStart, line, "StartLine does not follow on");
    complaint.Unless(depth >= 0, line, "negative indentation");
    complaint.Unless(stmt.EndRule + 4 <= static_cast<int>(ProofText.size()), line,
                     "ends behind the text");
    if (complaint.Any()) return;
    const std::string indent(static_cast<std::size_t>(depth), '\t');
    complaint.Unless(stmt.EndUserComment == 0 || (stmt.EndUserComment >= stmt.StartLine &&
                                                  Slice(stmt.EndUserComment + 1, "\r\n\r\n")),
                     line, "comment out of place");
    complaint.Unless(Slice(NumberStart(stmt) - depth, indent + number + "\t"), line,
                     "number out of place");
    complaint.Unless(stmt.StartStmt == NumberStart(stmt) + static_cast<int>(number.size()) + 1,
                     line, "StartStmt is not behind the number");
    complaint.Unless(stmt.EndStmt >= stmt.StartStmt, line, "empty statement text");
    complaint.Unless(Slice(stmt.EndStmt + 1, "\r\n\t" + indent), line, "annotation out of place");
    complaint.Unless(Slice(stmt.StartRule, RuleAnnotation(stmt.Rule, stmt.Arg1, stmt.Arg2)), line,
                     "annotation differs from rule and references");
    complaint.Unless(Slice(stmt.EndRule + 1, "\r\n\r\n"), line, "EndRule out of place");
}

bool IsBackward(int reference, int line) {
    return reference >= 0 && reference < line;
}

void CheckReferences(Complaint& complaint, int line, const Statement& stmt) {
    complaint.Unless(IsRuleNumber(stmt.Rule), line, "no such rule");
    complaint.Unless(IsBackward(stmt.Arg2, line), line, "Arg2 does not point backward");
    if (stmt.Rule != Rule::Premise || stmt.Arg1 == 0) {
        complaint.Unless(IsBackward(stmt.Arg1, line), line, "Arg1 does not point backward");
    } else {
        complaint.Unless(stmt.Arg1 > line && stmt.Arg1 <= StmtCount, line,
                         "Arg1 of a closed Premise");
        if (complaint.Any()) return;
        const Statement& end = StmtTable[stmt.Arg1];
        complaint.Unless(IsConclusion(end) && end.Arg1 == line, line,
                         "not closed by its Conclusion");
    }
    if (complaint.Any() || !IsConclusion(stmt)) return;
    const Statement& premise = StmtTable[stmt.Arg1];
    complaint.Unless(premise.Rule == Rule::Premise && premise.Arg1 == line, line,
                     "Conclusion without its Premise");
}

// Within a block every line lies at least one level deeper than the Conclusion.
void CheckNesting(Complaint& complaint) {
    std::vector<int> ends;
    for (int line = 1; line <= StmtCount && !complaint.Any(); ++line) {
        const Statement& stmt = StmtTable[line];
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

void CheckText(Complaint& complaint, int line, const Statement& stmt) {
    complaint.Unless(IsNameList(stmt.FixedVars), line, "FixedVars is no name list");
    // Texts found good before are not parsed again: the check runs after every command.
    static std::unordered_set<std::string> good;
    const std::string known = StmtText(line) + stmt.FreeVars;
    if (good.contains(known)) return;
    if (good.size() > 10000) good.clear();
    const Expression parsed = ParseExpression(StmtText(line));
    complaint.Unless(parsed.error.empty(), line, "the text does not parse");
    if (complaint.Any()) return;
    complaint.Unless(PrintExpression(parsed) == parsed.text, line, "the text is not canonical");
    complaint.Unless(FreeVarsOf(parsed) == stmt.FreeVars, line, "FreeVars differs from the text");
    if (!complaint.Any()) good.insert(known);
}

}  // namespace

std::string CheckDocument() {
    Complaint complaint;
    complaint.Unless(StmtTable.Count() == StmtCount, 0, "StmtCount differs from the table's size");
    complaint.Unless(IntroEnd <= 0 || Slice(IntroEnd + 1, "\r\n\r\n"), 0,
                     "introduction out of place");
    int start = ExpectedStart();
    int viewStart = FirstViewerStartLine();
    for (int line = 1; line <= StmtCount && !complaint.Any(); ++line) {
        const Statement& stmt = StmtTable[line];
        CheckReferences(complaint, line, stmt);
        CheckIndexes(complaint, line, stmt, start);
        if (complaint.Any()) break;
        CheckText(complaint, line, stmt);
        start = stmt.EndRule + 5;
        if (!stmt.Visible) continue;
        complaint.Unless(stmt.ViewerStartLine == viewStart, line, "ViewerStartLine");
        viewStart += BlockLength(stmt);
    }
    if (StmtCount > 0) {
        complaint.Unless(start == static_cast<int>(ProofText.size()) + 1, 0,
                         "text behind the last statement");
    }
    CheckNesting(complaint);
    return complaint.Text();
}

}  // namespace tessaryn
