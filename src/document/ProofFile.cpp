// The bytes of a proof file: writing, reading, and the check of what was read.
#include "document/ProofFile.h"

#include <cstdint>
#include <utility>

#include "document/Bytes.h"
#include "mainwindow/RuleModes.h"
#include "text/Encoding.h"
#include "text/Utf8.h"

namespace tessaryn {
namespace {

void WriteRecord(ByteWriter& out, const Statement& stmt) {
    out.Int16(stmt.Rule);
    out.Int16(stmt.Arg1);
    out.Int16(stmt.Arg2);
    out.String(stmt.SpecName);
    out.String(stmt.FreeVars);
    out.String(stmt.FixedVars);
    out.String(stmt.SpareVars);
    out.Bool(stmt.Visible);
    out.Int32(stmt.StartLine);
    out.Int32(stmt.EndUserComment);
    out.Int32(stmt.StartStmt);
    out.Int32(stmt.EndStmt);
    out.Int32(stmt.StartRule);
    out.Int32(stmt.EndRule);
    out.Int32(stmt.ViewerStartLine);
    out.Bool(stmt.Flagged);
    out.Int16(stmt.NewNumber);
    out.Bool(stmt.Highlight);
}

void ReadRecord(ByteReader& in, Statement& stmt) {
    stmt.Rule = in.Int16();
    stmt.Arg1 = in.Int16();
    stmt.Arg2 = in.Int16();
    stmt.SpecName = ToUtf8(in.String());
    stmt.FreeVars = ToUtf8(in.String());
    stmt.FixedVars = ToUtf8(in.String());
    stmt.SpareVars = ToUtf8(in.String());
    stmt.Visible = in.Bool();
    stmt.StartLine = in.Int32();
    stmt.EndUserComment = in.Int32();
    stmt.StartStmt = in.Int32();
    stmt.EndStmt = in.Int32();
    stmt.StartRule = in.Int32();
    stmt.EndRule = in.Int32();
    stmt.ViewerStartLine = in.Int32();
    stmt.Flagged = in.Bool();
    stmt.NewNumber = in.Int16();
    stmt.Highlight = in.Bool();
}

// Six indexes in order, with room between them for what stands there: a comment's line ends, the
// number and its TAB, the line end ahead of the annotation, the line ends behind it.
bool IndexesFit(const Statement& stmt, int expectedStart, std::int64_t textLength) {
    if (stmt.StartLine != expectedStart) return false;
    if (stmt.EndUserComment != 0 && stmt.EndUserComment < stmt.StartLine) return false;
    const std::int64_t line =
        stmt.EndUserComment > 0 ? std::int64_t{stmt.EndUserComment} + 5 : stmt.StartLine;
    const std::int64_t depth = std::int64_t{stmt.StartRule} - stmt.EndStmt - 4;
    return depth >= 0 && stmt.StartStmt >= line + depth + 2 && stmt.EndStmt >= stmt.StartStmt &&
           stmt.EndRule >= stmt.StartRule && std::int64_t{stmt.EndRule} + 4 <= textLength;
}

bool ReferencesFit(const std::vector<Statement>& table, int line) {
    const Statement& stmt = table[static_cast<std::size_t>(line)];
    const auto at = [&](int number) -> const Statement& {
        return table[static_cast<std::size_t>(number)];
    };
    if (!IsRuleNumber(stmt.Rule)) return false;
    if (stmt.Arg2 < 0 || stmt.Arg2 >= line || stmt.Arg1 < 0) return false;
    if (IsClosedPremise(stmt)) {
        return stmt.Arg1 > line && stmt.Arg1 < static_cast<int>(table.size()) &&
               IsConclusion(at(stmt.Arg1)) && at(stmt.Arg1).Arg1 == line;
    }
    if (stmt.Arg1 >= line) return false;
    return !IsConclusion(stmt) ||
           (at(stmt.Arg1).Rule == Rule::Premise && at(stmt.Arg1).Arg1 == line);
}

// What stands ahead of statement 1: nothing, or an introduction with its line ends.
bool IntroductionFits(std::int64_t length) {
    return length == 0 || length >= 4;
}

// The blocks follow each other from the introduction to the end of the text. A block written later
// would not stand right behind the last one otherwise, and its file could not be read back.
bool IsSound(const StoredProof& proof) {
    const auto textLength = static_cast<std::int64_t>(proof.text.size());
    const int count = static_cast<int>(proof.table.size()) - 1;
    if (count == 0) return IntroductionFits(textLength);
    int start = proof.table[1].StartLine;
    if (!IntroductionFits(std::int64_t{start} - 1)) return false;
    for (int line = 1; line <= count; ++line) {
        const Statement& stmt = proof.table[static_cast<std::size_t>(line)];
        if (!IndexesFit(stmt, start, textLength) || !ReferencesFit(proof.table, line)) return false;
        start = stmt.EndRule + 5;
    }
    return start == textLength + 1;
}

// Converts the text from Windows-1252, moving the indexes to where their characters went.
void ConvertText(StoredProof& proof) {
    if (IsUtf8(proof.text)) return;
    std::vector<int> moved(proof.text.size() + 2);  // new 1-based index of each old one
    moved[1] = 1;
    for (std::size_t i = 0; i < proof.text.size(); ++i) {
        moved[i + 2] = moved[i + 1] + Windows1252Length(static_cast<unsigned char>(proof.text[i]));
    }
    const auto first = [&](int index) { return moved[static_cast<std::size_t>(index)]; };
    const auto last = [&](int index) { return moved[static_cast<std::size_t>(index) + 1] - 1; };
    for (Statement& stmt : proof.table) {
        if (&stmt == &proof.table.front()) continue;
        stmt.StartLine = first(stmt.StartLine);
        if (stmt.EndUserComment > 0) stmt.EndUserComment = last(stmt.EndUserComment);
        stmt.StartStmt = first(stmt.StartStmt);
        stmt.EndStmt = last(stmt.EndStmt);
        stmt.StartRule = first(stmt.StartRule);
        stmt.EndRule = last(stmt.EndRule);
    }
    proof.text = ToUtf8(std::move(proof.text));
}

}  // namespace

std::string WriteProof() {
    ByteWriter out;
    out.Reserve(ProofText.size() + static_cast<std::size_t>(StmtCount) * 80 + 64);
    out.Bytes(FileMagic);
    out.Int16(StmtCount);
    out.String(ProofCaption);
    for (int line = 1; line <= StmtCount; ++line) {
        WriteRecord(out, StmtTable[line]);
    }
    out.String(ProofText.View());
    return out.Take();
}

std::optional<StoredProof> ReadProof(std::string_view bytes) {
    ByteReader in(bytes);
    if (in.Bytes(FileMagic.size()) != FileMagic) return std::nullopt;
    const int count = in.Int16();
    if (!in.Good() || count < 0) return std::nullopt;
    StoredProof proof;
    proof.caption = ToUtf8(in.String());
    proof.table.resize(1);
    for (int line = 1; line <= count && in.Good(); ++line)
        ReadRecord(in, proof.table.emplace_back());
    proof.text = in.String();
    if (!in.Good() || !IsSound(proof)) return std::nullopt;
    ConvertText(proof);
    return proof;
}

}  // namespace tessaryn
