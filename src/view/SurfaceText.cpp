// Element signs between a surface and plain text, and the normalisation of pasted expressions.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "view/Display.h"
#include "view/TextExchange.h"

namespace tessaryn {
namespace {

// Leaves out a run without characters.
void PushRun(std::vector<FormatRun>& runs, int start, int end, const CharFormat& format) {
    if (end > start) runs.push_back({start, end - start, format});
}

}  // namespace

void SetContent(RichTextBox& surface, std::string_view text, std::vector<FormatRun> runs) {
    const int length = static_cast<int>(text.size());
    std::vector<RichTextBox::Block> blocks;
    if (length > 0) blocks.push_back({length, 0});
    surface.SetText("");
    surface.SetBlocks(text, blocks, [runs = std::move(runs)](int) { return runs; });
    surface.Runs();
}

void ConvertAmpersand(RichTextBox& surface, int start, int length) {
    std::string text = surface.GetText();
    const int first = start - 1;
    const int last = std::min(first + length, static_cast<int>(text.size()));
    if (text.find('@') == std::string::npos) return;
    std::vector<FormatRun> runs;
    for (const FormatRun& run : surface.Runs()) {
        CharFormat symbol = run.format;
        symbol.Font = SymbolFont;
        int done = run.start;
        const int end = run.start + run.length;
        for (int at = std::max(run.start, first); at < std::min(end, last); ++at) {
            if (text[static_cast<std::size_t>(at)] != '@') continue;
            text[static_cast<std::size_t>(at)] = 'e';
            PushRun(runs, done, at, run.format);
            PushRun(runs, at, at + 1, symbol);
            done = at + 1;
        }
        PushRun(runs, done, end, run.format);
    }
    SetContent(surface, text, std::move(runs));
}

std::string ConvertEpsilon(RichTextBox& surface) {
    std::string text = surface.GetText();
    for (const FormatRun& run : surface.Runs()) {
        if (run.format.Font != SymbolFont) continue;
        for (int at = run.start; at < run.start + run.length; ++at) {
            char& c = text[static_cast<std::size_t>(at)];
            if (c == 'e') c = '@';
        }
    }
    return text;
}

void ReformatWA(Colour colour) {
    RichTextBox& surface = WorkArea.RTB;
    std::string text = TakenIn(PlainText({surface.GetText(), surface.Runs()}));
    const int length = static_cast<int>(text.size());
    std::vector<FormatRun> runs;
    PushRun(runs, 0, length, {StatementFont, StmtFontSize, colour, false});
    SetContent(surface, text, std::move(runs));
    ConvertAmpersand(surface, 1, length);
}

}  // namespace tessaryn
