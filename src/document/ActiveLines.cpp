#include "document/ActiveLines.h"

namespace tessaryn {

int LineBehind(int line, const Document& doc) {
    const Statement& stmt = At(line, doc);
    return IsClosedPremise(stmt) ? stmt.Arg1 : line + 1;
}

int LineAhead(int line, const Document& doc) {
    const Statement& stmt = At(line, doc);
    return (IsConclusion(stmt) ? stmt.Arg1 : line) - 1;
}

std::vector<int> ActiveLines(int first, int limit, const Document& doc) {
    std::vector<int> lines;
    for (int line = first; line < limit; line = LineBehind(line, doc)) {
        if (!IsClosedPremise(At(line, doc))) lines.push_back(line);
    }
    return lines;
}

bool IsActive(int line, int limit, const Document& doc) {
    if (line >= limit) return false;
    const StatementTable& table = doc.StmtTable;
    for (int edge = table.BlockEdgeFrom(1); edge <= line;) {
        const int behind = LineBehind(edge, doc);
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
        edge = table.BlockEdgeFrom(LineBehind(edge, doc));
    }
    return innermost;
}

}  // namespace tessaryn
