// The axioms of set theory: each command writes one statement that refers to no other.
//
//   scheme       asks for a number in MyInputBox and writes the axiom of that order
//   fixed axiom  is written at once
//
// No click.
#include <iterator>
#include <stdexcept>
#include <string>

#include "axioms/Axioms.h"
#include "axioms/EnteredNumber.h"
#include "axioms/SchemeText.h"
#include "document/PutStmt.h"
#include "expr/Expression.h"
#include "mainwindow/MyInputBox.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"

namespace tessaryn {
namespace {

const AxiomScheme& SchemeOf(int rule) {
    const AxiomScheme* scheme = std::begin(AxiomSchemes);
    while (scheme->rule != rule) ++scheme;
    return *scheme;
}

}  // namespace

void AskForAxiomOrder(int rule) {
    const AxiomScheme& scheme = SchemeOf(rule);
    RuleMode = rule;
    SetPrompt("");
    MyInputBox.Caption = scheme.caption;
    MyInputBox.Label1.Caption = scheme.prompt;
    MyInputBox.Label2.Caption.clear();
    ShowModal(MyInputBox);
}

void ContinueAxiomScheme() {
    const AxiomScheme& scheme = SchemeOf(RuleMode);
    const std::string wanted = "Enter a whole number from " + std::to_string(scheme.least) +
                               " to " + std::to_string(MaxAxiomOrder) + ".";
    int order = 0;
    try {
        order = EnteredNumber(MyInputBox.Text1.Text);
    } catch (const std::out_of_range&) {
        return RefuseEntry("Unable to process request", wanted);
    }
    if (order < scheme.least || order > MaxAxiomOrder) {
        return RefuseEntry(order < scheme.least ? scheme.refusal : "Invalid number", wanted);
    }
    NewStmtText = SchemeText(scheme, order);
    Arg1Pending = Arg2Pending = 0;
    // Another number would not help where the statement can't be written: StatusLine tells why.
    FinishRule(WriteStatement());
    MyInputBox.Hide();
}

void WriteAxiom(const FixedAxiom& axiom) {
    Proof.RTB.SetFocus();
    RuleMode = axiom.rule;
    SetPrompt("");
    Arg1Pending = Arg2Pending = 0;
    NewStmtText = axiom.text;
    FinishRule(WriteStatement());
}

}  // namespace tessaryn
