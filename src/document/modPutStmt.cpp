// The statement writer: canonical text, record, block, renumbering of what follows.
#include <string>
#include <utility>

#include "document/PutStmt.h"
#include "document/Statement.h"
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

Statement& At(int number) {
    return StmtTable[static_cast<std::size_t>(number)];
}

int Length(const std::string& text) {
    return static_cast<int>(text.size());
}

// Brings NewStmtText into canonical form, with its tables. False if it does not parse.
bool MakeCanonical() {
    NewStmtText = Trim(NewStmtText);
    Parse();
    if (!ParseError.empty()) return false;
    NewStmtText = PrintExpression();
    Parse();
    return ParseError.empty();
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
void FillRecord(int line) {
    Statement& stmt = At(line);
    stmt.Rule = RuleMode;
    stmt.Arg1 = Arg1Pending;
    stmt.Arg2 = Arg2Pending;
    stmt.FreeVars = CollectFreeVars();
    stmt.SpecName = RuleMode == Rule::ESpec || RuleMode == Rule::USpec ? SpecName : "";
    stmt.FixedVars = FixedNames(stmt.FreeVars, line);
    stmt.Visible = true;
    stmt.Highlight = MarksAsHighlight(stmt.Rule) ||
                     (stmt.Rule == Rule::Split && MarksAsHighlight(At(stmt.Arg1).Rule));
}

int NewStartLine(int line) {
    if (!InsertMode) return Length(ProofText) + 1;
    if (line > 1) return At(line - 1).EndRule + 5;
    if (IntroEnd > 0) return IntroEnd + 5;
    // Where statement 1 began; an empty introduction may have left its line ends ahead of it.
    return StmtCount > 1 ? At(2).StartLine : Length(ProofText) + 1;
}

int NewViewerStartLine(int line) {
    for (int above = line - 1; above >= 1; --above) {
        if (At(above).Visible) return At(above).ViewerStartLine + BlockLength(At(above));
    }
    return FirstViewerStartLine();
}

// Lays the block out, sets the indexes of statement `line`, and returns the block.
std::string BuildBlock(int line) {
    Statement& stmt = At(line);
    const std::string number = std::to_string(line);
    const std::string text = IndentContinuationLines(NewStmtText);
    stmt.StartLine = NewStartLine(line);
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

void ShiftReference(int& reference, int insertedLine) {
    if (reference >= insertedLine) ++reference;
}

// Copies the old block of statement `line` to the end of `text` with its new number and references,
// and sets its indexes to where it now lies.
void AppendRenumbered(std::string& text, int line, int insertedLine) {
    Statement& stmt = At(line);
    const int oldStart = stmt.StartLine;
    const int oldNumber = NumberStart(stmt);
    const int oldDigits = stmt.StartStmt - 1 - oldNumber;
    const int oldRule = stmt.StartRule;
    ShiftReference(stmt.Arg1, insertedLine);
    ShiftReference(stmt.Arg2, insertedLine);
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

// Puts the block in at its line and renumbers what follows, in one pass over the text.
void InsertBlock(int line, const std::string& block) {
    const auto before = static_cast<std::size_t>(At(line).StartLine - 1);
    std::string text;
    text.reserve(ProofText.size() + block.size() + 2 * static_cast<std::size_t>(StmtCount));
    text.append(ProofText, 0, before);
    text += block;
    for (int later = line + 1; later <= StmtCount; ++later) AppendRenumbered(text, later, line);
    ProofText = std::move(text);

    int start = At(line).ViewerStartLine + BlockLength(At(line));
    for (int later = line + 1; later <= StmtCount; ++later) {
        if (!At(later).Visible) continue;
        At(later).ViewerStartLine = start;
        start += BlockLength(At(later));
    }
    ++InsertLine;
    ShowInsertLine();
}

// Enters the canonical statement in NewStmtText and the tables.
void PutCanonical() {
    const int line = InsertMode ? InsertLine : StmtCount + 1;
    StmtTable.insert(StmtTable.begin() + line, Statement());
    ++StmtCount;
    FillRecord(line);
    const std::string block = BuildBlock(line);
    if (InsertMode) {
        InsertBlock(line, block);
    } else {
        ProofText += block;
    }
    ResetFonts();
    Proof.RTB.SelStart = 0;
    Proof.RTB.SelStart = ViewerEndRule(At(line));
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
    if (!MakeCanonical()) return ReportParseError();
    PutCanonical();
}

bool WriteStatement() {
    if (!StatementsFit(1)) return false;
    if (!MakeCanonical()) {
        ReportParseError();
        return false;
    }
    BackUpUndo();
    PutCanonical();
    return true;
}

}  // namespace tessaryn
