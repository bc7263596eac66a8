#include "document/ActiveLines.h"

namespace tessaryn {
namespace {

// The walk past closed blocks: where it goes on behind a line.
int NextBehind(int line, const Document& doc) {
    const Statement& stmt = At(line, doc);
    return IsClosedPremise(stmt) ? stmt.Arg1 : line + 1;
}

}  // namespace

std::vector<int> ActiveLines(int limit, const Document& doc) {
    std::vector<int> lines;
    for (int line = 1; line < limit; line = NextBehind(line, doc)) {
        if (!IsClosedPremise(At(line, doc))) lines.push_back(line);
    }
    return lines;
}

bool IsActive(int line, int limit, const Document& doc) {
    if (line >= limit) return false;
    const StatementTable& table = doc.StmtTable;
    for (int edge = table.BlockEdgeFrom(1); edge <= line;) {
        const int behind = NextBehind(edge, doc);
        if (line < behind && IsClosedPremise(At(edge, doc))) return false;
        edge = table.BlockEdgeFrom(behind);
    }
    return true;
}

int InnermostOpenPremise(int limit, const Document& doc) {
    int innermost = 0;
    const StatementTable& table = doc.StmtTable;
    for (int edge = table.BlockEdgeFrom(1); edge < limit;) {
        if (IsOpenPremise(At(edge, doc))) innermost = edge;
        edge = table.BlockEdgeFrom(NextBehind(edge, doc));
    }
    return innermost;
}

}  // namespace tessaryn
