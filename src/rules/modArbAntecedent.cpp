// Arb Cons: from P, writes ~P => Q, with any Q whose free variables are in use.
//
// One click, on any active statement. Then Q is asked for in TestParser.
#include <string>

#include "expr/Expression.h"
#include "rules/ArbitraryOperand.h"
#include "rules/Rules.h"

namespace tessaryn {

void ArbAntecedent() {
    AskForOperand("Arbitrary Consequent Rule, Line ");
}

std::string AcceptArbCons() {
    if (const std::string fault = CheckOperand(); !fault.empty()) return fault;
    return WriteWithOperand("~[" + StmtText2 + "]=>[" + NewStmtText + "]");
}

}  // namespace tessaryn
