// Subset: from Set(x), writes EXIST(y):[Set(y) & ALL(a):[a @ y <=> a @ x & P(a)]]; from Set'(x) the
// same for a set of ordered pairs, and so on with each further prime.
//
// One click: the statement Set(x). The user then enters y, a and P in SubsetFrm.
#include <string>

#include "axioms/Axioms.h"
#include "axioms/SubsetFrm.h"
#include "entry/ActiveStmts.h"
#include "entry/ClickPatterns.h"
#include "inference/Subset.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"

namespace tessaryn {
namespace {

std::string ElementPrompt() {
    if (SubsetOf.primes == 0) return "Enter bound variable for element of the subset:";
    return "List " + std::to_string(SubsetOf.primes + 1) +
           " bound variables (separated by commas) for element of subset:";
}

}  // namespace

void Subset() {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    if (!ParseOrReport()) return;
    Arg1Pending = line;
    Arg2Pending = 0;
    const Outcome fit = SubsetFrom(InHand);
    if (!fit.Applies()) return BeepAtLine(line, fit.refusal);
    SubsetOf = ReadSetStatement(InHand);
    SubsetFrm.Caption = "Subset Axiom, Line " + std::to_string(line) + ", " + NewStmtText;
    SubsetFrm.Label1.Caption = ElementPrompt();
    SetPrompt("");
    ShowModal(SubsetFrm);
}

}  // namespace tessaryn
