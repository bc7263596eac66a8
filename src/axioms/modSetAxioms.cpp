// The axioms of set theory: each command writes one statement that refers to no other.
//
//   scheme       asks for a number in MyInputBox and writes the axiom of that order
//   fixed axiom  is written at once
//
// No click.
#include <iterator>
#include <optional>
#include <string>

#include "axioms/Axioms.h"
#include "entry/EnteredNumber.h"
#include "entry/MyInputBox.h"
#include "expr/Expression.h"
#include "inference/SchemeText.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

struct SchemeRow {
    int rule;
    const AxiomScheme& scheme;
    const char* caption;
    const char* prompt;
};

const SchemeRow SchemeRows[] = {
    {Rule::CartProd, CartesianProductScheme, " Cartesian Product Axiom",
     "Enter the number of sets in the product (2 or more)"},
    {Rule::PowerSet, PowerSetScheme, "Power Set Axiom",
     "Enter order of set  (1 for a regular set, 2 for a set of order pairs, etc.)"},
    {Rule::SetEquality, SetEqualityScheme, " Set Equality Axiom",
     "Enter order of sets to be compared  (1 for regular sets, 2 for sets of order pairs, etc.)"},
    {Rule::NtupleEquality, NtupleEqualityScheme, " N-tuple Equality Axiom",
     "Enter order of n-tuple (2 for ordered pairs, 3 for ordered triples, etc.)"},
    {Rule::Function, FunctionExistenceScheme, "Function Axiom",
     "Enter the number of variables in the function (1 or more)"},
    {Rule::FnSpace, FunctionSpaceScheme, "Function Space",
     "Enter the number of variables in the function (1 or more)"},
    {Rule::FnEquality, FunctionEqualityScheme, " Function Equality Axiom",
     "Enter number of variables in functions"},
};

const SchemeRow& RowOf(int rule) {
    const SchemeRow* row = std::begin(SchemeRows);
    while (row->rule != rule) ++row;
    return *row;
}

void ContinueAxiomScheme() {
    const AxiomScheme& scheme = RowOf(RuleMode).scheme;
    const std::string wanted = "Enter a whole number from " + std::to_string(scheme.least) +
                               " to " + std::to_string(MaxAxiomOrder) + ".";
    const std::optional<int> order = EnteredNumber(MyInputBox.Text1.Text);
    if (!order) return RefuseEntry("Unable to process request", wanted);
    if (*order < scheme.least || *order > MaxAxiomOrder) {
        return RefuseEntry(*order < scheme.least ? scheme.refusal : "Invalid number", wanted);
    }
    NewStmtText = SchemeText(scheme, *order);
    Arg1Pending = Arg2Pending = 0;
    // Another number would not help where the statement can't be written: StatusLine tells why.
    FinishRule(WriteStatement());
    MyInputBox.Hide();
}

}  // namespace

void AskForAxiomOrder(int rule) {
    const SchemeRow& row = RowOf(rule);
    RuleMode = rule;
    SetPrompt("");
    AskInBox({row.caption, row.prompt, ContinueAxiomScheme});
}

void WriteAxiom(int rule, const char* text) {
    Proof.RTB.SetFocus();
    RuleMode = rule;
    SetPrompt("");
    Arg1Pending = Arg2Pending = 0;
    NewStmtText = text;
    FinishRule(WriteStatement());
}

}  // namespace tessaryn
