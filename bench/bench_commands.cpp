// One command in proofs of 100 to 32,000 statements, from the user's action to the display model.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <filesystem>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "expr/Expression.h"
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

// The proof is put back, untimed, after each round.
template <class Prepare, class Command>
void Measure(benchmark::State& state, Prepare prepare, Command command) {
    const int count = static_cast<int>(state.range(0));
    MakeLargeProof(count);
    const KeptProof proof;
    for (auto _ : state) {
        state.PauseTiming();
        proof.PutBack();
        Headless.Beeps.clear();
        prepare();
        LookAtScreen();
        state.ResumeTiming();
        command();
        LookAtScreen();
    }
    state.SetComplexityN(count);
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

void InsertPremiseAtLine2(benchmark::State& state) {
    Measure(
        state, [] { ResetFonts(); },
        [] {
            InsertMode = true;
            InsertLine = 2;
            RuleMode = Rule::Premise;
            Arg1Pending = Arg2Pending = 0;
            NewStmtText = "S(v) & v @ w";
            WriteStatement();
            InsertMode = false;
        });
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
BENCHMARK(InsertPremiseAtLine2)->Apply(Sizes);
BENCHMARK(UndoOfJoin)->Apply(Sizes);
BENCHMARK(Save)->Apply(Sizes);
BENCHMARK(Open)->Apply(Sizes);

}  // namespace
}  // namespace tessaryn
