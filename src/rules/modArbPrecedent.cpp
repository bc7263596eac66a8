// Arb Ante: from P, writes Q => P, with any Q whose free variables are in use.
//
// One click, on any active statement. Then Q is asked for in TestParser.
#include <string>

#include "expr/Expression.h"
#include "rules/ArbitraryOperand.h"
#include "rules/Rules.h"

namespace tessaryn {

void ArbPrecedent() {
    AskForOperand("Arbitrary Antecedent Rule, Line ");
}

std::string AcceptArbAnte() {
    if (const std::string fault = CheckOperand(); !fault.empty()) return fault;
    return WriteWithOperand("[" + NewStmtText + "]=>[" + StmtText2 + "]");
}

}  // namespace tessaryn
