// The expression language: parsing by size of the token table, and the whole road of a statement.
#include <benchmark/benchmark.h>

#include <random>
#include <string>
#include <vector>

#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"

namespace {

using namespace tessaryn;

// A statement of an axiom's make, with its own names by number.
std::string Statement(unsigned number, size_t conjuncts) {
    const std::string n = std::to_string(number);
    std::string text = "ALL(a" + n + "):[a" + n + " @ s => EXIST(b):[b @ s & f(a" + n + ",b)=0]]";
    for (size_t i = 1; i < conjuncts; i++) {
        const std::string c = std::to_string(number % 7 + i);
        text += " & [P" + c + "(x,y" + c + ") | ~x+y" + c + "*z<=(u-v)^2]";
    }
    return text;
}

std::vector<std::string> OrdinaryStatements() {
    std::mt19937 random(1);
    std::vector<std::string> statements;
    for (unsigned i = 0; i < 1000; i++) statements.push_back(Statement(i, 1 + random() % 8));
    return statements;
}

// The longest of these statements whose token table has at most so many entries.
std::string StatementOfTokens(size_t entries) {
    const auto fits = [entries](size_t conjuncts) {
        const Expression parsed = ParseExpression(Statement(1, conjuncts));
        return parsed.error.empty() && parsed.tokens.size() - 1 <= entries;
    };
    size_t conjuncts = 1;
    while (fits(conjuncts + 1)) conjuncts++;
    return Statement(1, conjuncts);
}

void BM_ParseByTokens(benchmark::State& state) {
    Expression parsed;
    parsed.text = StatementOfTokens(static_cast<size_t>(state.range(0)));
    for (auto _ : state) {
        Parse(parsed);
        benchmark::DoNotOptimize(parsed.nodes.data());
    }
    if (!parsed.error.empty()) state.SkipWithError(parsed.error.c_str());
    const auto entries = static_cast<double>(parsed.tokens.size() - 1);
    state.counters["entries"] = entries;
    state.counters["perToken"] = benchmark::Counter(
        entries, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(BM_ParseByTokens)->Arg(100)->Arg(300)->Arg(1000)->Arg(3000)->Arg(10000)->Arg(30000);

void BM_LexParsePrint(benchmark::State& state) {
    const std::vector<std::string> statements = OrdinaryStatements();
    size_t bytes = 0;
    for (auto _ : state) {
        for (const std::string& text : statements) {
            const Expression parsed = ParseExpression(text);
            benchmark::DoNotOptimize(PrintExpression(parsed));
            bytes += text.size();
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(bytes));
}
BENCHMARK(BM_LexParsePrint)->Unit(benchmark::kMillisecond);

void BM_Same(benchmark::State& state) {
    const std::vector<std::string> statements = OrdinaryStatements();
    size_t bytes = 0;
    for (auto _ : state) {
        for (size_t i = 1; i < statements.size(); i++) {
            benchmark::DoNotOptimize(Same(statements[i - 1], statements[i]));
            bytes += statements[i - 1].size() + statements[i].size();
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(bytes));
}
BENCHMARK(BM_Same)->Unit(benchmark::kMillisecond);

}  // namespace
