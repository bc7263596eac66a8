// What is put out of proofs of 100 to 32,000 statements: the page for a browser, LaTeX, and print.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "output/HTML.h"
#include "output/LaTeX.h"
#include "output/Printing.h"

namespace tessaryn {
namespace {

void PageForABrowser(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(HTMLPage());
    state.SetComplexityN(state.range(0));
}

void LaTeX(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(LaTeXDocument());
    state.SetComplexityN(state.range(0));
}

// With the file, which is flushed to the disk.
void SavedPage(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    const auto file = std::filesystem::temp_directory_path() / "tessaryn-bench.html";
    for (auto _ : state) {
        if (!SaveHTML(file.string()).empty()) state.SkipWithError("the page can't be written");
    }
    std::filesystem::remove(file);
}

void PrintCopy(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    int first = 2;
    // Never the one that is there already.
    for (auto _ : state) BuildPrintCopy(first = 3 - first, StmtCount);
    state.SetComplexityN(state.range(0));
}

void PrintedPages(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        PrintStatements(1, StmtCount, [](PrintResult result) { benchmark::DoNotOptimize(result); });
    }
    state.counters["pages"] = static_cast<double>(Headless.Pages.size());
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100)->Arg(1000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(PageForABrowser)->Apply(Sizes)->Complexity();
BENCHMARK(LaTeX)->Apply(Sizes)->Complexity();
BENCHMARK(SavedPage)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(PrintCopy)->Apply(Sizes)->Complexity();
BENCHMARK(PrintedPages)->Apply(Sizes);

}  // namespace
}  // namespace tessaryn
