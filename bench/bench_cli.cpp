// The command line's work on many statements and on long scripts and proofs.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <sstream>
#include <string>

#include "LargeProofs.h"
#include "Steps.h"
#include "cli/ExpressionTables.h"
#include "cli/ScriptRunner.h"
#include "document/ProofFile.h"
#include "platform/Files.h"

namespace tessaryn {
namespace {

constexpr int Statements = 32000;

void ParseToJson(benchmark::State& state) {
    std::string lines;
    for (int i = 0; i < Statements; ++i) {
        lines += "\"ALL(a):[a @ s" + std::to_string(i) + " => EXIST(b):[b @ t & R(a,b)]]\"\n";
    }
    for (auto _ : state) {
        std::istringstream in(lines);
        std::ostringstream out;
        std::ostringstream err;
        if (PrintParses(in, out, err) != 0) state.SkipWithError(err.str().c_str());
    }
    state.SetItemsProcessed(state.iterations() * Statements);
}

void ReplayOfJoins(benchmark::State& state) {
    std::string script = "choose optAxiom\nset RTB \"P(x,y)\"\nchoose cmdContinue\n";
    for (int i = 0; i < state.range(0); ++i) script += "choose optJoin\nclick 1\nclick 1\n";
    ScriptOptions options;
    options.checkDocument = false;
    for (auto _ : state) {
        std::ostringstream out;
        const ScriptFailure failure = PlayScript(script, options, out);
        if (!failure.reason.empty()) state.SkipWithError(failure.reason.c_str());
    }
}

// Runs work in a process of its own, which it ends with its status; gives what that used.
template <class Work>
rusage UsedBy(benchmark::State& state, Work work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(1);
    }
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child || status != 0) {
        state.SkipWithError("the process failed");
    }
    return usage;
}

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// A process counts the memory of the one that it came from, which stays small therefore.
void DumpOfAll(benchmark::State& state) {
    const auto file = std::filesystem::temp_directory_path() / "tessaryn-dump.proof";
    UsedBy(state, [&] {
        MakeLargeProof(Statements);
        _exit(ReplaceFile(file.string(), WriteProof()).empty() ? 0 : 1);
    });
    for (auto _ : state) {
        const rusage usage = UsedBy(state, [&] {
            if (freopen("/dev/null", "w", stdout) == nullptr) return;
            execl(TESSARYN_CLI, TESSARYN_CLI, "dump", file.c_str(), nullptr);
        });
        state.SetIterationTime(Seconds(usage.ru_utime) + Seconds(usage.ru_stime));
        state.counters["MB"] = static_cast<double>(usage.ru_maxrss) / 1024;
    }
    std::filesystem::remove(file);
}

BENCHMARK(ParseToJson)->Unit(benchmark::kMillisecond);
BENCHMARK(ReplayOfJoins)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK(DumpOfAll)->Unit(benchmark::kMillisecond)->UseManualTime();

}  // namespace
}  // namespace tessaryn
