// Detach: from P => Q and a statement that is the same as P, writes Q.
//
// First click: the implication. Second click: the antecedent; a miss beeps and waits for another
// click.
#include <string>

#include "document/PutStmt.h"
#include "expr/Same.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {
namespace {

void TakeImplication(int line, bool& firstClick) {
    if (Root(ParseTable).Rule != Node::Imply) {
        return BeepAtLine(line, "is no implication: Detach needs => as its outermost sign.");
    }
    Arg1Pending = line;
    KeepAsSecond();
    firstClick = false;
    SetPrompt("Detach:  Click any active statement that matches LHS of line " +
              std::to_string(line));
}

void TakeAntecedent(int line) {
    const ParseRec implication = Root(ParseTable2);
    const std::string antecedent = Cut(StmtText2, SpanOfNode(TokenTable2, implication.Ptr1));
    const std::string clicked = NewStmtText;
    if (!Same(antecedent, clicked)) {
        return BeepAtLine(line, "is not the left side of line " + std::to_string(Arg1Pending) +
                                    ", which reads " + antecedent + ".");
    }
    Arg2Pending = line;
    NewStmtText = Cut(StmtText2, SpanOfNode(TokenTable2, implication.Ptr2));
    FinishRule(ParseOrReport() && WriteStatement());
}

}  // namespace

void Detach(bool& firstClick) {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    if (!ParseOrReport()) return FinishRule(false);
    if (firstClick) {
        TakeImplication(line, firstClick);
    } else {
        TakeAntecedent(line);
    }
}

}  // namespace tessaryn
