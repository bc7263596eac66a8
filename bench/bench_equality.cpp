// E Gen and Substitute by Select All in a statement with 50 to 1,000 occurrences of a term, from
// the click to the display model with the new statement.
#include <benchmark/benchmark.h>

#include <string>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "platform/Events.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// A conjunction of equations: many nodes of few types, each occurrence in one of them.
std::string Equations(int count) {
    std::string text = "f(x)=g(x)";
    for (int i = 1; i < count; ++i) text += " & f(x)=g(x)";
    return text;
}

// Line 1 is the equation, line 2 the statement.
void Start(int count) {
    StartHeadless();
    Write("t=f(x)");
    Write(Equations(count));
}

template <class Rule>
void Measure(benchmark::State& state, Rule rule) {
    Start(static_cast<int>(state.range(0)));
    const KeptProof proof;
    for (auto _ : state) {
        rule();
        benchmark::DoNotOptimize(Proof.RTB.TakeChange());
        if (StmtCount != proof.Count() + 1) state.SkipWithError("no statement was written");
        state.PauseTiming();
        proof.PutBack();
        state.ResumeTiming();
    }
    state.SetComplexityN(state.range(0));
}

void GeneralizeAll(benchmark::State& state) {
    Measure(state, [] {
        SendChoose(Proof.optEGen);
        ClickStatement(2, 4);
        Generalize.BoundVarTextBox.Text = "v";
        Generalize.BoundVarTextBox.Change();
        SendChoose(Generalize.cmdSelectAll);
        SendChoose(Generalize.cmdContinue);
    });
}

void SubstituteAll(benchmark::State& state) {
    Measure(state, [] {
        SendChoose(Proof.optSubstitution);
        ClickStatement(1);
        ClickStatement(2);
        SendChoose(Substitution.cmdSelectAll);
        SendChoose(Substitution.cmdContinue);
    });
}

void Sizes(benchmark::internal::Benchmark* bench) {
    for (const int count : {50, 100, 200, 500, 1000}) bench->Arg(count);
    bench->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(GeneralizeAll)->Apply(Sizes);
BENCHMARK(SubstituteAll)->Apply(Sizes);

}  // namespace
}  // namespace tessaryn
