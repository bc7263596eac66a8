// A rewrite of one sign in a statement of 50 to 2,000 signs, from the click to the display model
// with the new statement, and Specify, Rename and Cases on statements of that length.
#include <benchmark/benchmark.h>

#include <string>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "entry/MyInputBox.h"
#include "entry/TestParser.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "platform/Events.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// P & [P => P] & [P => P] ... with that many signs.
std::string Chain(const std::string& sign, const std::string& operand, int signs) {
    std::string text = operand;
    for (int i = 1; i < signs; i += 2) text += sign + "[" + operand + "=>" + operand + "]";
    return text;
}

// A click on the place of a statement's text where `sign` stands nearest its middle.
void ClickMiddle(int line, const std::string& sign) {
    const std::string text(StoredText(line));
    const auto at = static_cast<int>(text.find(sign, text.size() / 2));
    Click(line, At(line).StartStmt + at);
}

// Runs a rule again and again on the same proof.
template <class Rule>
void Measure(benchmark::State& state, Rule rule) {
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

void Rewrite(benchmark::State& state, MenuItem& item, const std::string& sign) {
    StartHeadless();
    Write(Chain(" & ", "P(x)", static_cast<int>(state.range(0))));
    Measure(state, [&] {
        SendChoose(item);
        ClickMiddle(1, sign);
    });
}

void ImplyAnd(benchmark::State& state) {
    Rewrite(state, Proof.optImplies, "&");
}

void Contra(benchmark::State& state) {
    Rewrite(state, Proof.optContrapositive, "=>");
}

void DeMorganRule(benchmark::State& state) {
    Rewrite(state, Proof.optDeMorgan, "&");
}

void SpecifyTerm(benchmark::State& state) {
    StartHeadless();
    Write("k=k");
    Write("ALL(a):[" + Chain(" & ", "P(a)", static_cast<int>(state.range(0))) + "]");
    Measure(state, [] {
        SendChoose(Proof.optSpec);
        ClickMiddle(2, "&");
        TestParser.RTB.SetText("k");
        SendChoose(TestParser.cmdContinue);
    });
}

void RenameVariable(benchmark::State& state) {
    StartHeadless();
    Write("ALL(a):[" + Chain(" & ", "P(a)", static_cast<int>(state.range(0))) + "]");
    Measure(state, [] {
        SendChoose(Proof.optRename);
        ClickMiddle(1, "&");
        MyInputBox.Text1.Text = "b";
        SendChoose(MyInputBox.Continue);
    });
}

// As many cases as there are signs: each is compared with its disjunct.
void ManyCases(benchmark::State& state) {
    std::string cases = "P0";
    std::string implications = "[P0=>Q]";
    for (int i = 1; i < state.range(0); ++i) {
        const std::string p = "P" + std::to_string(i);
        cases += " | " + p;
        implications += " & [" + p + "=>Q]";
    }
    StartHeadless();
    Write(cases);
    Write(implications);
    Measure(state, [] {
        SendChoose(Proof.optCases);
        ClickMiddle(1, "|");
        ClickMiddle(2, "&");
    });
}

void Sizes(benchmark::internal::Benchmark* bench) {
    for (const int signs : {50, 100, 200, 500, 1000, 2000}) bench->Arg(signs);
    bench->Unit(benchmark::kMillisecond)->Complexity(benchmark::oN);
}

BENCHMARK(ImplyAnd)->Apply(Sizes);
BENCHMARK(Contra)->Apply(Sizes);
BENCHMARK(DeMorganRule)->Apply(Sizes);
BENCHMARK(SpecifyTerm)->Apply(Sizes);
BENCHMARK(RenameVariable)->Apply(Sizes);
BENCHMARK(ManyCases)->Apply(Sizes);

}  // namespace
}  // namespace tessaryn
