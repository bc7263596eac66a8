// The statement writer: record, block, renumbering of what follows.
#include "document/Writer.h"

#include <string_view>
#include <utility>

#include "document/RuleNames.h"

namespace tessaryn {
namespace {

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
void FillRecord(Document& document, int line, const NewStatement& given) {
    Statement& stmt = EditAt(line, document);
    stmt.Rule = given.rule;
    stmt.Arg1 = given.arg1;
    stmt.Arg2 = given.arg2;
    stmt.FreeVars = given.freeVars;
    stmt.SpecName = given.specName;
    stmt.FixedVars = FixedNames(stmt.FreeVars, line, document);
    stmt.Visible = true;
    stmt.Highlight = MarksAsHighlight(stmt.Rule) ||
                     (stmt.Rule == Rule::Split && MarksAsHighlight(At(stmt.Arg1, document).Rule));
}

// Where the block of the first of `count` new statements begins.
int NewStartLine(const Document& document, int line, int count) {
    const bool atEnd = line + count > document.StmtCount;
    if (atEnd) return Length(document.ProofText) + 1;
    if (line > 1) return At(line - 1, document).EndRule + 5;
    if (document.IntroEnd > 0) return document.IntroEnd + 5;
    // Where statement 1 began; an empty introduction may have left its line ends ahead of it.
    return At(1 + count, document).StartLine;
}

int NewViewerStartLine(const Document& document, int line) {
    for (int above = line - 1; above >= 1; --above) {
        const Statement& stmt = At(above, document);
        if (stmt.Visible) return stmt.ViewerStartLine + BlockLength(stmt);
    }
    return FirstViewerStartLine(document);
}

// Lays the block out, sets the indexes of statement `line`, and returns the block.
std::string BuildBlock(Document& document, int line, const std::string& canonical, int start) {
    Statement& stmt = EditAt(line, document);
    const std::string number = std::to_string(line);
    const std::string text = IndentContinuationLines(canonical);
    stmt.StartLine = start;
    stmt.ViewerStartLine = NewViewerStartLine(document, line);
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
void AppendRenumbered(std::string& text, Document& document, int line, int insertedLine,
                      int count) {
    Statement& stmt = EditAt(line, document);
    const int oldStart = stmt.StartLine;
    const int oldNumber = NumberStart(stmt);
    const int oldDigits = stmt.StartStmt - 1 - oldNumber;
    const int oldRule = stmt.StartRule;
    ShiftReference(stmt.Arg1, insertedLine, count);
    ShiftReference(stmt.Arg2, insertedLine, count);

    ShiftIndexes(stmt, Length(text) + 1 - oldStart);
    text += ProofSlice(oldStart, oldNumber - 1, document);
    AppendNumber(text, line);
    const int moreDigits = Length(text) + 2 - stmt.StartStmt;
    text += ProofSlice(oldNumber + oldDigits, oldRule - 1, document);
    stmt.StartStmt += moreDigits;
    stmt.EndStmt += moreDigits;
    stmt.StartRule += moreDigits;
    AppendRuleAnnotation(text, stmt.Rule, stmt.Arg1, stmt.Arg2);
    stmt.EndRule = Length(text);
    text += "\r\n\r\n";
}

// Puts the blocks of `count` statements in at their line and renumbers what follows, in one pass
// over the text.
void InsertBlocks(Document& document, int line, int count, const std::string& blocks) {
    const auto before = static_cast<std::size_t>(At(line, document).StartLine - 1);
    const int behind = line + count;
    std::string text;
    text.reserve(document.ProofText.size() + blocks.size() +
                 2 * static_cast<std::size_t>(document.StmtCount));
    text.append(document.ProofText.View(), 0, before);
    text += blocks;
    for (int later = behind; later <= document.StmtCount; ++later) {
        AppendRenumbered(text, document, later, line, count);
    }
    document.ProofText = std::move(text);
    // Ahead of the line only Premises point behind it: that of a Conclusion which comes in, and
    // others where the blocks of a file cross.
    const StatementTable& table = document.StmtTable;
    for (int ahead = table.BlockEdgeFrom(1); ahead < line; ahead = table.BlockEdgeFrom(ahead + 1)) {
        const bool closesHere = IsConclusion(table[line]) && table[line].Arg1 == ahead;
        if (table[ahead].Arg1 >= line && !closesHere) EditAt(ahead, document).Arg1 += count;
    }

    const Statement& last = At(behind - 1, document);
    int start = last.ViewerStartLine + BlockLength(last);
    for (int later = behind; later <= document.StmtCount; ++later) {
        if (!At(later, document).Visible) continue;
        EditAt(later, document).ViewerStartLine = start;
        start += BlockLength(At(later, document));
    }
}

}  // namespace

void EnterStatements(Document& document, int line, const std::vector<NewStatement>& stmts) {
    const int count = static_cast<int>(stmts.size());
    document.StmtTable.Insert(line, count);
    document.StmtCount += count;
    const int start = NewStartLine(document, line, count);
    std::string blocks;
    int next = line;
    for (const NewStatement& stmt : stmts) {
        FillRecord(document, next, stmt);
        blocks += BuildBlock(document, next++, stmt.text, start + Length(blocks));
    }
    if (next > document.StmtCount) {
        document.ProofText += blocks;
    } else {
        InsertBlocks(document, line, count, blocks);
    }
}

}  // namespace tessaryn
