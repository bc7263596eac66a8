// What a redraw of the proof display costs the surface.
#include <benchmark/benchmark.h>

#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {
namespace {

// Blocks of about 94 bytes; `changedAt` tells the one that comes on top.
struct Content {
    std::string text;
    std::vector<RichTextBox::Block> blocks;

    explicit Content(int count, int changedAt = -1) {
        for (int i = 0; i < count; ++i) {
            if (i == changedAt) Add(count);
            Add(i);
        }
        if (changedAt >= count) Add(count);
    }

    void Add(int number) {
        const std::string block =
            std::to_string(number) +
            "\tALL(x):[x @ n => EXIST(y):[y @ n & x+1=y & (x,y) @ s]]\r\n\t\tU Spec, " +
            std::to_string(number / 2) + "\r\n\r\n";
        blocks.push_back({static_cast<int>(block.size()), static_cast<std::uint64_t>(number)});
        text += block;
    }
};

std::vector<FormatRun> SevenRuns(int index) {
    std::vector<FormatRun> runs;
    runs.reserve(7);
    for (int i = 0; i < 7; ++i) {
        runs.push_back(
            {10 * i,
             i < 6 ? 10 : 40,
             {"Courier New", i < 6 ? 12 : 10, static_cast<Colour>((i + index) % 3), false}});
    }
    return runs;
}

void SetBlocks(benchmark::State& state, const Content& with) {
    const Content without(static_cast<int>(state.range(0)));
    Form form{"Proof"};
    RichTextBox box{form, "RTB"};
    box.SetBlocks(without.text, without.blocks, SevenRuns);
    benchmark::DoNotOptimize(box.Runs());
    bool more = true;
    for (auto _ : state) {
        const Content& content = more ? with : without;
        box.SetBlocks(content.text, content.blocks, SevenRuns);
        benchmark::DoNotOptimize(box.TakeChange());
        more = !more;
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(with.text.size()) * state.iterations());
}

void SetBlocksOneAtTheEnd(benchmark::State& state) {
    const int count = static_cast<int>(state.range(0));
    SetBlocks(state, Content(count, count));
}

void SetBlocksOneAtTheSecondPlace(benchmark::State& state) {
    SetBlocks(state, Content(static_cast<int>(state.range(0)), 1));
}

void RunsInAllPending(benchmark::State& state) {
    const Content content(static_cast<int>(state.range(0)));
    Form form{"Proof"};
    for (auto _ : state) {
        state.PauseTiming();
        RichTextBox box{form, "RTB"};
        form.Controls.clear();
        box.SetBlocks(content.text, content.blocks, SevenRuns);
        state.ResumeTiming();
        benchmark::DoNotOptimize(box.Runs());
    }
}

void RunsInOneScreen(benchmark::State& state) {
    const Content content(static_cast<int>(state.range(0)));
    Form form{"Proof"};
    RichTextBox box{form, "RTB"};
    box.SetBlocks(content.text, content.blocks, SevenRuns);
    const int middle = box.TextLength() / 2;
    for (auto _ : state) benchmark::DoNotOptimize(box.RunsIn(middle, middle + 5000));
}

// Copying the whole display, and taking it back into an editing box.
void WriteAndReadRtf(benchmark::State& state) {
    const Content content(static_cast<int>(state.range(0)));
    Form form{"Proof"};
    RichTextBox display{form, "RTB"};
    RichTextBox editor{form, "CommentBox"};
    display.SetBlocks(content.text, content.blocks, SevenRuns);
    for (auto _ : state) {
        editor.TextRTF = display.TextRTF;
        editor.TextRTF = "";
    }
}

void Sizes(benchmark::internal::Benchmark* bench) {
    for (const int count : {100, 1000, 10000, 32000}) bench->Arg(count);
    bench->Unit(benchmark::kMicrosecond);
}

BENCHMARK(SetBlocksOneAtTheEnd)->Apply(Sizes);
BENCHMARK(SetBlocksOneAtTheSecondPlace)->Apply(Sizes);
BENCHMARK(RunsInAllPending)->Apply(Sizes);
BENCHMARK(RunsInOneScreen)->Apply(Sizes);
BENCHMARK(WriteAndReadRtf)->Apply(Sizes);

}  // namespace
}  // namespace tessaryn
