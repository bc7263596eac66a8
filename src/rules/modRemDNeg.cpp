// Rem DNeg: takes a double negation away, anywhere in a statement: ~~P gives P.
//
// One click, on the first of the two ~.
#include "document/PutStmt.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {
namespace {

constexpr const char* Needs = "Rem DNeg needs the first ~ of a double negative";

// The ~ of the negation whose bracket group, with written brackets around it, begins at a token.
int SignOfNegation(int bracket) {
    while (TokenAt(TokenTable, bracket).Token != "~") ++bracket;
    return bracket;
}

Span OperandOfNegation(int sign) {
    return WrittenSpan(TokenTable, sign + 1, TokenAt(TokenTable, sign + 1).TPtr);
}

}  // namespace

void RemDNeg() {
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, Needs)) return;
    if (TokenAt(TokenTable, token).Token != "~") return BeepAtToken(line, token, Needs);
    if (NodeAt(ParseTable, TokenAt(TokenTable, token + 1).DPtr).Rule != Node::LNeg) {
        return BeepAtLine(line, "has no second ~ under this one: " + std::string(Needs) + ".");
    }
    const Span whole = {TokenAt(TokenTable, token).Position, OperandOfNegation(token).end};
    const Span operand = OperandOfNegation(SignOfNegation(token + 1));
    NewStmtText = Splice(StmtText2, whole, Cut(StmtText2, operand));
    FinishRule(ParseOrReport() && WriteStatement());
}

}  // namespace tessaryn
