// Split: from P & Q & R, writes P, Q and R as statements of their own, in the order of the text.
// The conjuncts of a right operand stay together.
//
// One click, on any active conjunction.
#include <string>
#include <vector>

#include "document/PutStmt.h"
#include "expr/Expression.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

// The conjuncts of the conjunction in the tables, from the last to the first.
std::vector<std::string> ConjunctsFromTheRight() {
    const NodeTexts texts(NewStmtText, TokenTable, ParseTable);
    std::vector<std::string> pieces;
    int node = RootIndex(ParseTable);
    while (NodeAt(ParseTable, node).Rule == Node::LAnd) {
        pieces.push_back(texts[NodeAt(ParseTable, node).Ptr2]);
        node = NodeAt(ParseTable, node).Ptr1;
    }
    pieces.push_back(texts[node]);
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
    const std::vector<std::string> pieces = ConjunctsFromTheRight();
    if (!StatementsFit(static_cast<int>(pieces.size()))) return FinishRule(false);
    BackUpUndo();
    Arg2Pending = 0;
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
        NewStmtText = *piece;
        if (!ParseOrReport()) return FinishRule(false);
        Arg1Pending = line;
        PutStmt();
    }
    FinishRule(true);
}

}  // namespace tessaryn
