// Folding, deleting, commenting and finding in proofs of 100 to 32,000 statements, from the user's
// action to the display model.
#include <benchmark/benchmark.h>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "editing/Comment.h"
#include "editing/Find.h"
#include "entry/Warning.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "menu/ClickTable.h"
#include "platform/Events.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

// `prepare`, and putting the proof back to what it was after that, is not timed.
template <class Prepare, class Command>
void Measure(benchmark::State& state, Prepare prepare, Command command) {
    const int count = static_cast<int>(state.range(0));
    MakeLargeProof(count);
    prepare(count);
    const KeptProof proof;
    for (auto _ : state) {
        command(count);
        LookAtScreen();
        state.PauseTiming();
        proof.PutBack();
        Headless.Beeps.clear();
        ResetFonts();
        LookAtScreen();
        state.ResumeTiming();
    }
    state.SetComplexityN(count);
}

void Nothing(int) {}

template <MenuItem ProofForm::*item>
void View(benchmark::State& state) {
    Measure(state, Nothing, [](int) { SendChoose(Proof.*item); });
}

template <MenuItem ProofForm::*item>
void ViewOfFolded(benchmark::State& state) {
    Measure(
        state, [](int) { SendChoose(Proof.optHideDetails); }, [](int) { SendChoose(Proof.*item); });
}

void FoldBlockInTheMiddle(benchmark::State& state) {
    Measure(state, Nothing, [](int count) {
        const int conclusion = count / 20 * 10 + 8;
        Click(conclusion, At(conclusion).StartRule);
    });
}

void ToggleNumberInTheMiddle(benchmark::State& state) {
    Measure(state, Nothing, [](int count) { Click(count / 2, NumberStart(At(count / 2))); });
}

// Nearly all of the proof uses the names that line 2 brings in.
void DeleteLine2AndAllOnIt(benchmark::State& state) {
    Measure(state, Nothing, [](int) {
        StartClickRule(DeleteAllRefMode);
        Click(2, At(2).StartStmt);
        SendChoose(Warning.cmdContinue);
    });
}

// Nothing hangs on line 10, but all lines behind it get new numbers.
void DeleteLine10Alone(benchmark::State& state) {
    Measure(state, Nothing, [](int) {
        StartClickRule(DeleteAllRefMode);
        Click(10, At(10).StartStmt);
    });
}

void CommentOnLine2(benchmark::State& state) {
    Measure(state, Nothing, [](int) {
        Click(2, At(2).StartStmt);
        Comment.CommentBox.SetText("Two lines\r\nof comment");
        SendChoose(Comment.Continue);
    });
}

void FindWhatIsNowhere(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    SendChoose(Proof.optFind);
    Find.SearchStringTextBox.SetText("P(x,y) & x @ t");
    for (auto _ : state) {
        SendChoose(Find.cmdFind);
        Headless.Beeps.clear();
    }
    state.SetComplexityN(state.range(0));
}

// Each place is looked at, and none counts.
void FindWhatIsHidden(benchmark::State& state) {
    MakeLargeProof(static_cast<int>(state.range(0)));
    SendChoose(Proof.optHideDetails);
    SendChoose(Proof.optFind);
    Find.SearchStringTextBox.SetText("Split, ");
    for (auto _ : state) {
        SendChoose(Find.cmdFind);
        Headless.Beeps.clear();
    }
    state.SetComplexityN(state.range(0));
}

void Sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100)->Arg(1000)->Arg(10000)->Arg(32000)->Unit(benchmark::kMillisecond);
}

using P = ProofForm;
BENCHMARK(View<&P::optHideDetails>)->Name("HideAllDetails")->Apply(Sizes);
BENCHMARK(View<&P::optShowHighlights>)->Name("ShowHighlights")->Apply(Sizes);
BENCHMARK(ViewOfFolded<&P::optShowDetails>)->Name("ShowAllActive")->Apply(Sizes);
BENCHMARK(ViewOfFolded<&P::optShowLastDetails>)->Name("ShowLastActive")->Apply(Sizes);
BENCHMARK(ViewOfFolded<&P::optShowAllStmts>)->Name("ShowAllStmts")->Apply(Sizes);
BENCHMARK(FoldBlockInTheMiddle)->Apply(Sizes);
BENCHMARK(ToggleNumberInTheMiddle)->Apply(Sizes);
BENCHMARK(DeleteLine2AndAllOnIt)->Apply(Sizes);
BENCHMARK(DeleteLine10Alone)->Apply(Sizes);
BENCHMARK(CommentOnLine2)->Apply(Sizes);
BENCHMARK(FindWhatIsNowhere)->Apply(Sizes);
BENCHMARK(FindWhatIsHidden)->Apply(Sizes);

}  // namespace
}  // namespace tessaryn
