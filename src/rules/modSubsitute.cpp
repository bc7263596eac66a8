// Substitute: from an equation A = B and a statement in which B occurs, writes the statement with A
// for some or all occurrences of B; or the other way round.
//
// First click: the side of an active equation that is to be put in; a click on = means the left
// one. Second click: the statement; one without the other side beeps and waits for another click.
// The dialogue Substitution does the rest.
#include <algorithm>
#include <string>

#include "expr/Parse.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Occurrences.h"
#include "rules/Operands.h"
#include "rules/Rules.h"
#include "rules/Substitution.h"

namespace tessaryn {
namespace {

struct Sides {
    std::string left;
    std::string right;
};

// Without the blanks beside the sign, which starts at `sign` (1-based) and is one byte long.
Sides SidesOf(const std::string& equation, int sign) {
    const auto at = static_cast<std::size_t>(sign - 1);
    Sides sides{equation.substr(0, at), equation.substr(at + 1)};
    sides.left.erase(sides.left.find_last_not_of(' ') + 1);
    sides.right.erase(0, sides.right.find_first_not_of(' '));
    return sides;
}

// A term with an operator of its own must not come apart where it is put in.
std::string InBracketsIfNeeded(const std::string& term, int rule) {
    const bool closed = rule == Node::Atom || rule == Node::Ntuple || rule == Node::Func;
    return closed ? term : "(" + term + ")";
}

void TakeEquation(bool& firstClick) {
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, "click a side of an equation")) return;
    if (Root(ParseTable).Rule != Node::EQ) {
        return BeepAtLine(line, "is no equation: Substitute needs = as its outermost sign.");
    }
    const auto equals = std::find_if(TokenTable.begin(), TokenTable.end(),
                                     [](const TokenRec& rec) { return rec.Token == "="; });
    SubstEquation = NewStmtText;
    const bool rightClicked = TokenAt(TokenTable, token).Position > equals->Position;
    Sides sides = SidesOf(SubstEquation, equals->Position);
    if (rightClicked) std::swap(sides.left, sides.right);
    NewStmtText = sides.left;
    if (!ParseOrReport()) return;
    SubstSource = InBracketsIfNeeded(sides.left, Root(ParseTable).Rule);
    SubstTarget = sides.right;
    firstClick = false;
    SetPrompt("Subst:  Click any active statement with TARGET Expression, '" + SubstTarget + "'");
}

// The parser's checks of the names must hold over both statements at once: no name may be free in
// the one and bound in the other. So no occurrence of the target holds a bound variable either.
bool FitTogether(const std::string& statement) {
    NewStmtText = "[" + statement + "]&[" + SubstEquation + "]";
    Parse();
    if (ParseError.empty()) return true;
    Beep(ParseError);
    SetPrompt(ParseError);
    return false;
}

bool HoldsTarget(const Expression& statement) {
    const std::vector<bool> same = NodesThatAre(SubstTargetTable, statement.nodes);
    return std::find(same.begin(), same.end(), true) != same.end();
}

void TakeStatement() {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    Arg2Pending = line;
    if (!ParseOrReport()) return;
    const Expression statement{NewStmtText, TokenTable, ParseTable, "", 0};
    if (!FitTogether(statement.text)) return;
    NewStmtText = SubstTarget;
    if (!ParseOrReport()) return;
    SubstTargetTable = ParseTable;
    if (!HoldsTarget(statement)) {
        return BeepAtLine(line, "does not hold " + SubstTarget +
                                    ": click a statement in which it can be replaced.");
    }
    ShowModal(Substitution);
    RuleMode = 0;
}

}  // namespace

void Subsitute(bool& firstClick) {
    if (firstClick) {
        TakeEquation(firstClick);
    } else {
        TakeStatement();
    }
}

}  // namespace tessaryn
