// The two free starting points of a proof.
//
//   Premise: opens a block that the Conclusion Rule closes. No axiom may follow it.
//   Axiom:   opens nothing. No premise may precede it, open or closed.
//
// Both open TestParser, which checks the entry, and write what it accepts.
#include <string>

#include "document/Document.h"
#include "entry/EntryChecks.h"
#include "entry/TestParser.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// Is there a statement of that rule on lines first to last? Gives its line, 0 if not.
int FindStatement(int rule, int first, int last) {
    for (int line = first; line <= last; ++line) {
        if (StmtTable[line].Rule == rule) return line;
    }
    return 0;
}

void Refuse(const std::string& message, const std::string& reason) {
    Beep(reason);
    SetPrompt(message);
    Proof.RTB.SetFocus();
}

std::string CheckPremise() {
    const std::string logical = RootIsLogical() ? "" : "Expecting a logical expression";
    // The later message is the one shown.
    const std::string names = InsertMode ? CheckPremiseNames() : "";
    return names.empty() ? logical : names;
}

std::string CheckAxiom() {
    return RootIsLogical() ? CheckAxiomNames() : "Expecting a logical expression";
}

void EnterStatement(int rule, const std::string& caption, std::string (*check)()) {
    Proof.RTB.SetFocus();
    RuleMode = rule;
    Arg1Pending = Arg2Pending = 0;
    SpecName.clear();
    SetPrompt("");
    AskForExpression(
        {caption, check, "Suggestion: Use letters a-j for bound variables, k-z for free variables"},
        [] { FinishRule(OperationCancelled || WriteStatement()); });
}

}  // namespace

void Premise() {
    const int axiom = InsertMode ? FindStatement(Rule::Axiom, InsertLine, StmtCount) : 0;
    if (axiom > 0) {
        return Refuse(
            "Premise Rule: Axiom found on subsequent line. Consider another insertion point.",
            "Line " + std::to_string(axiom) + " is an Axiom: all axioms stand ahead of premises.");
    }
    EnterStatement(Rule::Premise, "Premise Rule: Enter a premise", CheckPremise);
}

void Axiom() {
    const int premise = FindStatement(Rule::Premise, 1, InsertionLimit() - 1);
    if (premise > 0) {
        return Refuse(
            "Axiom Rule: Premise on previous line. Consider another insertion point for axiom.",
            "Line " + std::to_string(premise) +
                " is a Premise: all axioms stand ahead of premises.");
    }
    EnterStatement(Rule::Axiom, "Create an Axiom: Enter a logical expression", CheckAxiom);
}

}  // namespace tessaryn
