// Quant: turns a quantifier anywhere in a statement into its dual: ALL(x):P gives ~EXIST(x):~P, and
// EXIST(x):P gives ~ALL(x):~P.
//
// One click, on the word ALL or EXIST.
#include <string>

#include "document/PutStmt.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {

void Quant() {
    constexpr const char* needs = "Quant needs the word ALL or EXIST";
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, needs)) return;
    const TokenRec& keyword = TokenAt(TokenTable, token);
    if (keyword.Token != "ALL" && keyword.Token != "EXIST") {
        return BeepAtToken(line, token, needs);
    }
    const char* dual = keyword.Token == "ALL" ? "~EXIST" : "~ALL";
    const Span variable = WrittenSpan(TokenTable, token + 1, token + 6);  // "(x):"
    NewStmtText =
        Splice(StmtText2, {keyword.Position, variable.end}, dual + Cut(StmtText2, variable) + "~");
    FinishRule(WriteStatement());
}

}  // namespace tessaryn
