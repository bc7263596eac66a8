// The statement writer: canonical text, record, block, renumbering of what follows.
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/Document.h"
#include "document/PutStmt.h"
#include "expr/Blanks.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

int Length(std::string_view text) {
    return static_cast<int>(text.size());
}

struct Canonical {
    std::string text;
    std::string freeVars;
};

// Brings NewStmtText into canonical form, with its tables. False if it does not parse.
bool MakeCanonical(Canonical& stmt) {
    NewStmtText = Trim(NewStmtText);
    Parse();
    if (!ParseError.empty()) return false;
    NewStmtText = PrintExpression();
    Parse();
    if (!ParseError.empty()) return false;
    stmt = {NewStmtText, CollectFreeVars()};
    return true;
}

std::string IndentContinuationLines(const std::string& text) {
    std::string indented;
    for (const char c : text) {
        indented += c;
        if (c == '\n') indented += '\t';
    }
    return indented;
}

bool MarksAsHighlight(int rule) {
    return rule == Rule::Premise || rule == Rule::Axiom || rule == Rule::ESpec;
}

// Rule, references and name lists of statement `line`, which stands in the table already.
void FillRecord(int line, const std::string& freeVars) {
    Statement& stmt = EditAt(line);
    stmt.Rule = RuleMode;
    stmt.Arg1 = Arg1Pending;
    stmt.Arg2 = Arg2Pending;
    stmt.FreeVars = freeVars;
    stmt.SpecName = RuleMode == Rule::ESpec || RuleMode == Rule::USpec ? SpecName : "";
    stmt.FixedVars = FixedNames(stmt.FreeVars, line);
    stmt.Visible = true;
    stmt.Highlight = MarksAsHighlight(stmt.Rule) ||
                     (stmt.Rule == Rule::Split && MarksAsHighlight(At(stmt.Arg1).Rule));
}

// Where the block of the first of `count` new statements begins.
int NewStartLine(int line, int count) {
    if (!InsertMode) return Length(ProofText) + 1;
    if (line > 1) return At(line - 1).EndRule + 5;
    if (IntroEnd > 0) return IntroEnd + 5;
    // Where statement 1 began; an empty introduction may have left its line ends ahead of it.
    return StmtCount > count ? At(1 + count).StartLine : Length(ProofText) + 1;
}

int NewViewerStartLine(int line) {
    for (int above = line - 1; above >= 1; --above) {
        if (At(above).Visible) return At(above).ViewerStartLine + BlockLength(At(above));
    }
    return FirstViewerStartLine();
}

// Lays the block out, sets the indexes of statement `line`, and returns the block.
std::string BuildBlock(int line, const std::string& canonical, int start) {
    Statement& stmt = EditAt(line);
    const std::string number = std::to_string(line);
    const std::string text = IndentContinuationLines(canonical);
    stmt.StartLine = start;
    stmt.ViewerStartLine = NewViewerStartLine(line);
    stmt.EndUserComment = 0;
    stmt.StartStmt = stmt.StartLine + Length(number) + 1;
    stmt.EndStmt = stmt.StartStmt + Length(text) - 1;
    std::string block = number + "\t" + text + "\r\n\t";
    stmt.StartRule = stmt.StartLine + Length(block);
    block += RuleAnnotation(stmt.Rule, stmt.Arg1, stmt.Arg2) + "\r\n\r\n";
    stmt.EndRule = stmt.StartLine + Length(block) - 5;
    return block;
}

void ShiftReference(int& reference, int insertedLine, int count) {
    if (reference >= insertedLine) reference += count;
}

// Copies the old block of statement `line` to the end of `text` with its new number and references,
// and sets its indexes to where it now lies.
void AppendRenumbered(std::string& text, int line, int insertedLine, int count) {
    Statement& stmt = EditAt(line);
    const int oldStart = stmt.StartLine;
    const int oldNumber = NumberStart(stmt);
    const int oldDigits = stmt.StartStmt - 1 - oldNumber;
    const int oldRule = stmt.StartRule;
    ShiftReference(stmt.Arg1, insertedLine, count);
    ShiftReference(stmt.Arg2, insertedLine, count);
    const std::string number = std::to_string(line);
    const std::string annotation = RuleAnnotation(stmt.Rule, stmt.Arg1, stmt.Arg2);
    const int moreDigits = Length(number) - oldDigits;

    const int shift = Length(text) + 1 - oldStart;
    text += ProofSlice(oldStart, oldNumber - 1);
    text += number;
    text += ProofSlice(oldNumber + oldDigits, oldRule - 1);
    text += annotation;
    text += "\r\n\r\n";
    ShiftIndexes(stmt, shift);
    stmt.StartStmt += moreDigits;
    stmt.EndStmt += moreDigits;
    stmt.StartRule += moreDigits;
    stmt.EndRule = stmt.StartRule + Length(annotation) - 1;
}

// Puts the blocks of `count` statements in at their line and renumbers what follows, in one pass
// over the text.
void InsertBlocks(int line, int count, const std::string& blocks) {
    const auto before = static_cast<std::size_t>(At(line).StartLine - 1);
    const int behind = line + count;
    std::string text;
    text.reserve(ProofText.size() + blocks.size() + 2 * static_cast<std::size_t>(StmtCount));
    text.append(ProofText.View(), 0, before);
    text += blocks;
    for (int later = behind; later <= StmtCount; ++later) {
        AppendRenumbered(text, later, line, count);
    }
    ProofText = std::move(text);
    // Ahead of the line only Premises point behind it: that of a Conclusion which comes in, and
    // others where the blocks of a file cross.
    for (int ahead = 1; ahead < line; ++ahead) {
        const bool closesHere = IsConclusion(At(line)) && At(line).Arg1 == ahead;
        if (At(ahead).Arg1 >= line && !closesHere) EditAt(ahead).Arg1 += count;
    }

    int start = At(behind - 1).ViewerStartLine + BlockLength(At(behind - 1));
    for (int later = behind; later <= StmtCount; ++later) {
        if (!At(later).Visible) continue;
        EditAt(later).ViewerStartLine = start;
        start += BlockLength(At(later));
    }
    InsertLine += count;
    ShowInsertLine();
}

// Enters the statements one behind the other.
void PutCanonical(const std::vector<Canonical>& stmts) {
    const int line = InsertMode ? InsertLine : StmtCount + 1;
    const int count = static_cast<int>(stmts.size());
    StmtTable.Insert(line, count);
    StmtCount += count;
    const int start = NewStartLine(line, count);
    std::string blocks;
    int next = line;
    for (const Canonical& stmt : stmts) {
        FillRecord(next, stmt.freeVars);
        blocks += BuildBlock(next++, stmt.text, start + Length(blocks));
    }
    if (InsertMode) {
        InsertBlocks(line, count, blocks);
    } else {
        ProofText += blocks;
    }
    ResetFonts();
    Proof.RTB.SelStart = 0;
    Proof.RTB.SelStart = ViewerEndRule(At(next - 1));
}

}  // namespace

bool StatementsFit(int count) {
    if (count <= MaxStatements - StmtCount) return true;
    ParseError = "Unable to process request";
    SetPrompt(ParseError);
    Beep("A proof holds at most " + std::to_string(MaxStatements) + " statements.");
    return false;
}

void PutStmt() {
    if (!StatementsFit(1)) return;
    Canonical stmt;
    if (!MakeCanonical(stmt)) return ReportParseError();
    PutCanonical({stmt});
}

bool WriteStatements(const std::vector<std::string>& texts) {
    if (!StatementsFit(static_cast<int>(texts.size()))) return false;
    std::vector<Canonical> stmts(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        NewStmtText = texts[i];
        if (MakeCanonical(stmts[i])) continue;
        ReportParseError();
        return false;
    }
    BackUpUndo();
    PutCanonical(stmts);
    return true;
}

bool WriteStatement() {
    return WriteStatements({NewStmtText});
}

}  // namespace tessaryn
