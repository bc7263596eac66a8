#include "document/ActiveLines.h"

#include <algorithm>

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

namespace {

// The next edge of a block on the walk past closed ones. Their Conclusions don't count.
int NextEdge(int edge, const StatementTable& table) {
    return table.BlockEdgeFrom(std::max(edge, table.BlockEnd(edge)) + 1);
}

}  // namespace

bool IsActive(int line, int limit, const Document& doc) {
    return line < limit && doc.StmtTable.WalkComesBy(line) && !IsClosedPremise(At(line, doc));
}

int InnermostOpenPremise(int limit, const Document& doc) {
    int innermost = 0;
    for (int edge = doc.StmtTable.BlockEdgeFrom(1); edge < limit;
         edge = NextEdge(edge, doc.StmtTable)) {
        if (IsOpenPremise(At(edge, doc))) innermost = edge;
    }
    return innermost;
}

}  // namespace tessaryn
