// The bytes of a proof file: writing, reading, and the check of what was read.
#include "document/ProofFile.h"

#include <cstdint>
#include <utility>

#include "document/Invariants.h"
#include "document/RuleNames.h"
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

// A list that is the likely one, as most are, need not be looked up among all lists.
KeptText ReadNames(ByteReader& in, const KeptText& likely = {}) {
    std::string names = in.String();
    return names == likely.Text() ? likely : KeptText(ToUtf8(std::move(names)));
}

Statement ReadRecord(ByteReader& in) {
    Statement stmt;
    stmt.Rule = in.Int16();
    stmt.Arg1 = in.Int16();
    stmt.Arg2 = in.Int16();
    stmt.SpecName = ReadNames(in);
    stmt.FreeVars = ReadNames(in);
    stmt.FixedVars = ReadNames(in, stmt.FreeVars);
    stmt.SpareVars = ReadNames(in);
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
    return stmt;
}

bool IndexesLieWithin(const Statement& stmt, std::size_t length) {
    for (const int index : {stmt.StartLine, stmt.EndUserComment, stmt.StartStmt, stmt.EndStmt,
                            stmt.StartRule, stmt.EndRule}) {
        if (index < 0 || static_cast<std::size_t>(index) > length) return false;
    }
    return true;
}

// Gives the document its text, as UTF-8. The indexes move to where their characters go. False if
// one of them is outside the text.
bool TakeText(Document& proof, std::string text) {
    if (IsUtf8(text)) {
        proof.ProofText = std::move(text);
        return true;
    }
    std::vector<int> moved(text.size() + 2);  // new 1-based index of each old one
    moved[1] = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        moved[i + 2] = moved[i + 1] + Windows1252Length(static_cast<unsigned char>(text[i]));
    }
    const auto first = [&](int index) { return moved[static_cast<std::size_t>(index)]; };
    const auto last = [&](int index) { return moved[static_cast<std::size_t>(index) + 1] - 1; };
    for (int line = 1; line <= proof.StmtCount; ++line) {
        Statement& stmt = proof.StmtTable.Edit(line);
        if (!IndexesLieWithin(stmt, text.size())) return false;
        stmt.StartLine = first(stmt.StartLine);
        if (stmt.EndUserComment > 0) stmt.EndUserComment = last(stmt.EndUserComment);
        stmt.StartStmt = first(stmt.StartStmt);
        stmt.EndStmt = last(stmt.EndStmt);
        stmt.StartRule = first(stmt.StartRule);
        stmt.EndRule = last(stmt.EndRule);
    }
    proof.ProofText = ToUtf8(std::move(text));
    return true;
}

int IntroductionLength(const Document& proof) {
    if (proof.StmtCount == 0) return static_cast<int>(proof.ProofText.size()) - 4;
    const int start = proof.StmtTable[1].StartLine;
    return start < 2 ? 0 : start - 5;
}

}  // namespace

std::string WriteProof(const Document& doc) {
    ByteWriter out;
    out.Reserve(doc.ProofText.size() + static_cast<std::size_t>(doc.StmtCount) * 80 + 64);
    out.Bytes(FileMagic);
    out.Int16(doc.StmtCount);
    out.String(doc.ProofCaption);
    for (int line = 1; line <= doc.StmtCount; ++line) {
        WriteRecord(out, doc.StmtTable[line]);
    }
    out.String(doc.ProofText.View());
    return out.Take();
}

std::optional<Document> ReadProof(ByteReader& in) {
    if (in.Bytes(FileMagic.size()) != FileMagic) return std::nullopt;
    const int count = in.Int16();
    if (!in.Good() || count < 0) return std::nullopt;
    Document proof;
    proof.Content = ContentState::Unknown;
    proof.ProofCaption = ToUtf8(in.String());
    for (; proof.StmtCount < count; ++proof.StmtCount) {
        const Statement stmt = ReadRecord(in);
        // At once, as what is no proof file at all can go on for long.
        if (!in.Good() || !IsRuleNumber(stmt.Rule)) return std::nullopt;
        proof.StmtTable.Append(stmt);
    }
    std::string text = in.String();
    if (!in.Good() || !TakeText(proof, std::move(text))) return std::nullopt;
    if (!StructureFault(proof).empty()) return std::nullopt;
    proof.IntroEnd = IntroductionLength(proof);
    return proof;
}

std::optional<Document> ReadProof(std::string_view bytes) {
    ByteReader in(bytes);
    return ReadProof(in);
}

}  // namespace tessaryn
