// Split: from P & Q & R, writes P, Q and R as statements of their own, in the order of the text.
// The conjuncts of a right operand stay together.
//
// One click, on any active conjunction.
#include <algorithm>
#include <string>
#include <vector>

#include "document/PutStmt.h"
#include "expr/Expression.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {
namespace {

// The conjuncts of the conjunction in the tables, in the order of the text.
std::vector<std::string> Conjuncts() {
    const NodeTexts texts(NewStmtText, TokenTable, ParseTable);
    std::vector<std::string> pieces;
    int node = RootIndex(ParseTable);
    while (NodeAt(ParseTable, node).Rule == Node::LAnd) {
        pieces.push_back(texts[NodeAt(ParseTable, node).Ptr2]);
        node = NodeAt(ParseTable, node).Ptr1;
    }
    pieces.push_back(texts[node]);
    std::ranges::reverse(pieces);
    return pieces;
}

}  // namespace

void Split() {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    if (!ParseOrReport()) return FinishRule(false);
    if (Root(ParseTable).Rule != Node::LAnd) {
        return BeepAtLine(line, "is no conjunction: Split needs & as its outermost sign.");
    }
    Arg1Pending = line;
    Arg2Pending = 0;
    FinishRule(WriteStatements(Conjuncts()));
}

}  // namespace tessaryn
