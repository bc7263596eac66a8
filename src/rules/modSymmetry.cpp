// Sym: from a statement with A = B anywhere inside it, writes the statement with B = A there.
//
// One click, on the sign = of an active statement.
#include <string>

#include "document/PutStmt.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {

// Both sides are terms, which need no brackets beside "=".
void Symmetry() {
    constexpr const char* needs = "Sym needs a click on =";
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, needs)) return;
    if (TokenAt(TokenTable, token).Token != "=") return BeepAtToken(line, token, needs);
    const OperandSpans sides = OperandsOf(TokenTable, token);
    NewStmtText = Splice(StmtText2, {sides.left.start, sides.right.end},
                         Cut(StmtText2, sides.right) + "=" + Cut(StmtText2, sides.left));
    if (ParseOrReport()) FinishRule(WriteStatement());
}

}  // namespace tessaryn
