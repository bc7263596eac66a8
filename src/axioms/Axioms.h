// The commands of the menus Sets and Numbers that write axioms and definitions. Their texts stand
// in inference/AxiomTexts.h; the statements refer to no earlier line, save that of Subset.
#pragma once

#include "inference/AxiomTexts.h"

namespace tessaryn {

// Click rule: from Set(x), or Set'(x) and so on, writes that the subset exists that a criterion
// defines. Asks for it in SubsetFrm.
void Subset();

// Asks for the number of a scheme in MyInputBox and writes the axiom of that order.
void AskForAxiomOrder(int rule);

// Writes a single axiom.
void WriteAxiom(int rule, const char* text);

// Writes all axioms of a group, as one step of undo, if there is no premise ahead and no reserved
// name has another meaning yet.
void WriteAxiomGroup(const AxiomGroup& group);

// Writes the definition of an operator, if what it needs is in use.
void WriteDefinition(const OperatorDefinition& definition);

// Asks in InductionForm for a property and writes the principle of induction for it.
void InductionShortcut();

// Each of the commands with its text, as a row of the menu table takes it.
template <int rule>
void WriteScheme() {
    AskForAxiomOrder(rule);
}
template <int rule, const char* const& text>
void Write() {
    WriteAxiom(rule, text);
}
template <const AxiomGroup& group>
void WriteGroup() {
    WriteAxiomGroup(group);
}
template <const OperatorDefinition& definition>
void Define() {
    WriteDefinition(definition);
}

}  // namespace tessaryn
