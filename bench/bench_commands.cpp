// One command in proofs of 100 to 32,000 statements, from the user's action to the display model.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "entry/MyInputBox.h"
#include "entry/TermChecks.h"
#include "entry/TestParser.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "menu/ClickTable.h"
#include "platform/Events.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// The proof that is open is put back, untimed, after each round.
template <class Prepare, class Command>
void MeasureOpen(benchmark::State& state, Prepare prepare, Command command) {
    const KeptProof proof;
    for (auto _ : state) {
        state.PauseTiming();
        proof.PutBack();
        Headless.Beeps.clear();
        if (InsertMode) EndInsertMode();
        prepare();
        LookAtScreen();
        const int before = StmtCount;
        state.ResumeTiming();
        command();
        LookAtScreen();
        if (StmtCount == before)
            return state.SkipWithError(Headless.Beeps.empty() ? "no statement was written"
                                                              : Headless.Beeps.back().c_str());
    }
    state.SetComplexityN(state.range(0));
}

template <class Prepare, class Command>
void Measure(benchmark::State& state, Prepare prepare, Command command) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    MeasureOpen(state, prepare, command);
}

void JoinLastLines() {
    StartClickRule(Rule::Join);
    ClickStatement(StmtCount - 1);
    ClickStatement(StmtCount);
}

// As one of many: what was put back shares its bytes with the one that is kept, and the first line
// written behind it parts the two.
void JoinAtEnd(benchmark::State& state) {
    Measure(state, JoinLastLines, JoinLastLines);
}

void SplitLastLine() {
    StartClickRule(Rule::Split);
    ClickStatement(StmtCount);
}

void SplitAtEnd(benchmark::State& state) {
    Measure(state, JoinLastLines, SplitLastLine);
}

void InsertAhead(int line) {
    if (InsertMode) SendChoose(Proof.optInsert);
    SendChoose(Proof.optInsert);
    ClickStatement(line);
}

// With the check that the names are new to the lines behind it.
void EnterPremise() {
    SendChoose(Proof.optPremise);
    TestParser.RTB.SetText("S(v) & v @ w");
    SendChoose(TestParser.cmdContinue);
}

void InsertPremiseAtLine2(benchmark::State& state) {
    Measure(
        state, [] { InsertAhead(2); }, EnterPremise);
}

void Conclude() {
    SendChoose(Proof.optConclusion);
    MyInputBox.Text1.Text = "c,d";
    SendChoose(MyInputBox.Continue);
}

// A premise at that line, and what follows from it up to the other line.
void AppendOpenBlock(int first, int last) {
    MakeLargeProof(first - 1);
    EnterPremise();
    while (StmtCount < last) {
        StartClickRule(Rule::Split);
        ClickStatement(first);
    }
}

void ConclusionOverHalf(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    AppendOpenBlock(count / 2 + 1, count);
    MeasureOpen(
        state, [] {}, Conclude);
}

// The block holds the first half, and the other half comes behind it.
void ConclusionOverHalfInserted(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    AppendOpenBlock(1, count / 2 + 1);
    while (StmtCount < count) Write("ALL(a):a=a");
    MeasureOpen(
        state, [count] { InsertAhead(count / 2 + 2); }, Conclude);
}

// The names of a term must stand in a line that makes it an element of something; none does, and
// each line is parsed.
void FirstFindOfACompoundTerm(benchmark::State& state) {
    StartHeadless();
    for (int i = 1; i < state.range(0); ++i) {
        const std::string n = std::to_string(i);
        Write("P(x,y) & [ALL(a):[a @ s => R(a,f" + n + "(a))] | ~Q(f(z)+" + n + ")]");
    }
    Write("ALL(a):P(a)");
    for (auto _ : state) {
        SendChoose(Proof.optSpec);
        ClickStatement(StmtCount);
        TestParser.RTB.SetText("f(z)");
        SendChoose(TestParser.cmdContinue);
        state.PauseTiming();
        if (!TestParser.Visible) state.SkipWithError("the term was taken");
        SendChoose(TestParser.cmdCancel);
        ResetTermChecks();
        Headless.Beeps.clear();
        state.ResumeTiming();
    }
}

void UndoOfJoin(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    MakeLargeProof(count);
    StartClickRule(Rule::Join);
    ClickStatement(count - 1);
    ClickStatement(count);
    for (auto _ : state) {
        SendChoose(Proof.optUndo);
        LookAtScreen();
        state.PauseTiming();
        SendChoose(Proof.optRedo);
        state.ResumeTiming();
    }
    state.SetComplexityN(count);
}

std::string ScratchFile() {
    return (std::filesystem::temp_directory_path() / "tessaryn-bench.proof").string();
}

void Save(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    ProofFileName = ScratchFile();
    for (auto _ : state) SendChoose(Proof.optSave);
}

// With the check that its names are new.
void CreateAxiom(benchmark::State& state) {
    Measure(
        state, [] { InsertAhead(1); },
        [] {
            SendChoose(Proof.optAxiom);
            TestParser.RTB.SetText("S(v) & v @ w");
            SendChoose(TestParser.cmdContinue);
        });
}

void Open(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    ProofFileName = ScratchFile();
    SendChoose(Proof.optSave);
    for (auto _ : state) {
        Headless.Files.push_back(ScratchFile());
        SendChoose(Proof.optOpen);
        LookAtScreen();
    }
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100)->Arg(1000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(JoinAtEnd)->Apply(Sizes);
BENCHMARK(SplitAtEnd)->Apply(Sizes);
BENCHMARK(CreateAxiom)->Apply(Sizes);
BENCHMARK(InsertPremiseAtLine2)->Apply(Sizes);
BENCHMARK(ConclusionOverHalf)->Apply(Sizes);
BENCHMARK(ConclusionOverHalfInserted)->Apply(Sizes);
BENCHMARK(FirstFindOfACompoundTerm)->Arg(32000)->Unit(benchmark::kMillisecond);
BENCHMARK(UndoOfJoin)->Apply(Sizes);
BENCHMARK(Save)->Apply(Sizes);
BENCHMARK(Open)->Apply(Sizes);

}  // namespace
}  // namespace tessaryn
