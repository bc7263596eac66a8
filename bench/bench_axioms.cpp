// The commands of the menus Sets and Numbers in proofs of 100 to 32,000 statements, from the user's
// action to the display model, and the largest schemes.
#include <benchmark/benchmark.h>

#include <algorithm>

#include "Steps.h"
#include "axioms/Axioms.h"
#include "axioms/InductionForm.h"
#include "axioms/SubsetFrm.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "entry/MyInputBox.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "platform/Events.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// Runs the command on a large proof, which is put back, untimed, after each round. `lines`: how
// many statements it writes.
template <class Command>
void Measure(benchmark::State& state, int lines, Command command) {
    const KeptProof proof;
    for (auto _ : state) {
        command();
        LookAtScreen();
        state.PauseTiming();
        if (StmtCount != proof.Count() + lines) state.SkipWithError("the command was refused");
        proof.PutBack();
        if (InsertMode) InsertLine = 1;
        state.ResumeTiming();
    }
}

void MakeProof(const benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
}

// Writes an axiom, as one that a definition finds.
void AddAxiom(const char* text) {
    RuleMode = Rule::Axiom;
    Arg1Pending = Arg2Pending = 0;
    NewStmtText = text;
    FinishRule(WriteStatement());
}

void WriteScheme(int rule, const char* number) {
    AskForAxiomOrder(rule);
    MyInputBox.Text1.Text = number;
    SendChoose(MyInputBox.Continue);
}

void FixedAxiomAtEnd(benchmark::State& state) {
    MakeProof(state);
    Measure(state, 1, [] { SendChoose(Proof.optPairwiseUnion); });
}

void SchemeAtEnd(benchmark::State& state) {
    MakeProof(state);
    Measure(state, 1, [] { WriteScheme(Rule::CartProd, "2"); });
}

// Where the axioms may go in: ahead of the first premise, so that all lines get new numbers.
void RingAxiomsAtLine1(benchmark::State& state) {
    MakeProof(state);
    InsertMode = true;
    InsertLine = 1;
    Measure(state, 13, [] { SendChoose(Proof.optRingAxioms); });
    InsertMode = false;
}

// Behind statements without premises.
void RingAxiomsAtEnd(benchmark::State& state) {
    MakeProof(state);
    StmtTable.EditEach([](Statement& stmt) { stmt.Rule = Rule::Copy; });
    Measure(state, 13, [] { SendChoose(Proof.optRingAxioms); });
}

void DefinitionAtEnd(benchmark::State& state) {
    MakeProof(state);
    AddAxiom("1@n");
    Measure(state, 1, [] { SendChoose(Proof.optMultiplicationProperties); });
}

void SubsetAtEnd(benchmark::State& state) {
    MakeProof(state);
    SubsetFrm.Activated();
    SubsetOf = {0, "s"};
    Measure(state, 1, [] {
        RuleMode = Rule::Subset;
        Arg1Pending = 1;
        Arg2Pending = 0;
        SubsetFrm.SubsetName.Text = "y";
        SubsetFrm.BoundVars.Text = "a";
        SubsetFrm.SelectExpression.SetText("a=t & P(x,a)");
        SendChoose(SubsetFrm.cmdContinue);
    });
}

void InductionAtEnd(benchmark::State& state) {
    MakeProof(state);
    AddAxiom("1=n");
    InductionForm.Activated();
    Measure(state, 1, [] {
        RuleMode = Rule::Induction;
        Arg1Pending = Arg2Pending = 0;
        InductionForm.BoundVarTextBox.Text = "k";
        InductionForm.RTB.SetText("P(x,k) & k+x=x+k");
        SendChoose(InductionForm.cmdContinue);
    });
}

// The argument is the rule.
void SchemeOfOrder99(benchmark::State& state) {
    MakeLargeProof(10000);
    const int rule = static_cast<int>(state.range(0));
    Measure(state, 1, [rule] { WriteScheme(rule, "99"); });
    state.SetLabel(RuleName(rule));
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100)->Arg(1000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(FixedAxiomAtEnd)->Apply(Sizes);
BENCHMARK(SchemeAtEnd)->Apply(Sizes);
BENCHMARK(RingAxiomsAtLine1)->Apply(Sizes);
BENCHMARK(RingAxiomsAtEnd)->Apply(Sizes);
BENCHMARK(DefinitionAtEnd)->Apply(Sizes);
BENCHMARK(SubsetAtEnd)->Apply(Sizes);
BENCHMARK(InductionAtEnd)->Apply(Sizes);
BENCHMARK(SchemeOfOrder99)
    ->Arg(Rule::CartProd)
    ->Arg(Rule::PowerSet)
    ->Arg(Rule::SetEquality)
    ->Arg(Rule::Function)
    ->Arg(Rule::FnSpace)
    ->Arg(Rule::FnEquality)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaryn
