// The second checker on proofs of 100 to 32,000 lines. Lines a second are what counts.
#include <benchmark/benchmark.h>

#include "Steps.h"
#include "check/Check.h"
#include "document/ProofFile.h"

namespace tessaryn {
namespace {

void Check(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    const std::string file = WriteProof();
    for (auto _ : state) {
        const check::CheckedProof proof = check::CheckProof(file);
        if (!proof.sentence.empty()) state.SkipWithError(proof.sentence.c_str());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}

// With what each statement that is in force at the end rests on.
void Report(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    const check::CheckedProof proof = check::CheckProof(WriteProof());
    for (auto _ : state) {
        for (int line = 1; line <= proof.Count(); ++line) {
            if (proof.InForce(line)) benchmark::DoNotOptimize(proof.RestsOn(line));
        }
    }
}

BENCHMARK(Check)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Arg(32000)
    ->Unit(benchmark::kMillisecond)
    ->Complexity();
BENCHMARK(Report)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessaryn
