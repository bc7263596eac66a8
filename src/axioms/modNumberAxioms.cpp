// The axioms about the numbers, groups and rings, and the definitions of the operators on the
// numbers. Their names n, 1, g, r and 0 are free variables of the proof.
//
//   group       writes its axioms one behind the other, ahead of any premise
//   definition  writes one statement, behind an axiom or open premise with n
//
// No click.
#include <algorithm>
#include <string>

#include "axioms/Axioms.h"
#include "axioms/NamesInUse.h"
#include "document/Document.h"
#include "entry/EntryChecks.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

bool Refuse(const std::string& message) {
    Beep(message);
    SetPrompt(message);
    RuleMode = 0;
    return false;
}

bool PremiseAhead() {
    int line = 1;
    while (line < InsertionLimit() && At(line).Rule != Rule::Premise) ++line;
    return line < InsertionLimit();
}

bool NamesAreFree(const AxiomGroup& group) {
    for (int line = 1; line <= StmtCount; ++line) {
        for (const ReservedName& reserved : group.names) {
            if (!IsIntroducedOn(reserved.name, line)) continue;
            return Refuse(reserved.message + std::to_string(line));
        }
    }
    return true;
}

bool HasWhatItNeeds(Needs needs) {
    switch (needs) {
        case Needs::N:
            return AxiomsOrPremisesHold({"n"});
        case Needs::NAndOne:
            return AxiomsOrPremisesHold({"n", "1"});
        case Needs::NAndOneInPremises:
            return PremisesHold({"n", "1"});
    }
    return false;
}

}  // namespace

void WriteAxiomGroup(const AxiomGroup& group) {
    if (PremiseAhead()) {
        Refuse(group.premiseMessage);
        return;
    }
    if (!NamesAreFree(group)) return;
    Proof.RTB.SetFocus();
    RuleMode = Rule::Axiom;
    Arg1Pending = Arg2Pending = 0;
    FinishRule(WriteStatements({group.texts.begin(), group.texts.end()}));
}

void WriteDefinition(const OperatorDefinition& definition) {
    RuleMode = Rule::Definition;
    SetPrompt("");
    if (!HasWhatItNeeds(definition.needs)) {
        Refuse(definition.refusal);
        return;
    }
    Arg1Pending = Arg2Pending = 0;
    NewStmtText = definition.text;
    FinishRule(WriteStatement());
}

}  // namespace tessaryn
