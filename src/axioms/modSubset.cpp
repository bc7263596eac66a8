// Subset: from Set(x), writes EXIST(y):[Set(y) & ALL(a):[a @ y <=> a @ x & P(a)]]; from Set'(x) the
// same for a set of ordered pairs, and so on with each further prime.
//
// One click: the statement Set(x). The user then enters y, a and P in SubsetFrm.
#include <algorithm>
#include <string>

#include "axioms/Axioms.h"
#include "axioms/SubsetFrm.h"
#include "expr/Parse.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "rules/Operands.h"

namespace tessaryn {
namespace {

constexpr std::size_t SetLength = 3;  // of "Set"

// "Set", with any number of primes.
bool IsSetName(const std::string& name) {
    return name.starts_with("Set") &&
           std::all_of(name.begin() + SetLength, name.end(), [](char c) { return c == '\''; });
}

// The statement in the tables says of one term that it is a set.
bool SaysSet() {
    return Root(ParseTable).Rule == Node::Pred &&
           IsAlgebraic(NodeAt(ParseTable, RootIndex(ParseTable) - 1).Rule) &&
           IsSetName(NodeAt(ParseTable, 1).Name);
}

std::string ElementPrompt() {
    if (SubsetPrimes == 0) return "Enter bound variable for element of the subset:";
    return "List " + std::to_string(SubsetPrimes + 1) +
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
    if (!SaysSet()) {
        return BeepAtLine(line,
                          "does not say that something is a set: Subset needs Set(x), "
                          "Set'(x) and so on.");
    }
    const std::string& text = NewStmtText;
    const std::size_t primes = NodeAt(ParseTable, 1).Name.size() - SetLength;
    SubsetPrimes = static_cast<int>(primes);
    SubsetParent = text.substr(primes + SetLength + 1, text.size() - primes - SetLength - 2);
    SubsetFrm.Caption = "Subset Axiom, Line " + std::to_string(line) + ", " + text;
    SubsetFrm.Label1.Caption = ElementPrompt();
    SetPrompt("");
    ShowModal(SubsetFrm);
}

}  // namespace tessaryn
