// Substitute: from an equation A = B and a statement in which B occurs, writes the statement with A
// for some or all occurrences of B; or the other way round.
//
// First click: the side of an active equation that is to be put in; a click on = means the left
// one. Second click: the statement; one without the other side beeps and waits for another click.
// The dialogue Substitution does the rest.
#include <string>

#include "entry/ActiveStmts.h"
#include "entry/ClickPatterns.h"
#include "inference/Equality.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "rules/Substitution.h"

namespace tessaryn {
namespace {

void TakeEquation(bool& firstClick) {
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, "click a side of an equation")) return;
    if (const Outcome fit = SubstituteFrom(InHand); !fit.Applies()) return BeepRefusal(line, fit);
    SubstEquation = NewStmtText;
    const EquationSides sides = SidesOf(InHand, token);
    NewStmtText = sides.source;
    if (!ParseOrReport()) return;
    SubstSource = InBracketsIfNeeded(InHand);
    SubstTarget = sides.target;
    firstClick = false;
    SetPrompt("Subst:  Click any active statement with TARGET Expression, '" + SubstTarget + "'");
}

void TakeStatement() {
    int line = 0;
    if (!TakeClickedLine(line, AfterParseError::StayPending)) return;
    Arg2Pending = line;
    const Expression statement = InHand;
    const std::string clash = FitTogether(statement, SubstEquation);
    if (!clash.empty()) {
        Beep(clash);
        return SetPrompt(clash);
    }
    NewStmtText = SubstTarget;
    if (!ParseOrReport()) return;
    SubstTargetTable = ParseTable;
    const Outcome fit = SubstituteIn(statement, InHand);
    if (!fit.Applies()) return BeepRefusal(line, fit);
    AskIn(Substitution, EndRule);
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
