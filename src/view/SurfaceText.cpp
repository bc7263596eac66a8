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
    surface.SetContent(std::move(text), runs);
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

void ShowExpression(RichTextBox& surface, std::string text, Colour colour) {
    const CharFormat plain{StatementFont, StmtFontSize, colour, false};
    CharFormat symbol = plain;
    symbol.Font = SymbolFont;
    std::vector<FormatRun> runs;
    runs.reserve(2 * static_cast<std::size_t>(std::count(text.begin(), text.end(), '@')) + 1);
    int done = 0;
    for (auto at = text.find('@'); at != text.npos; at = text.find('@', at + 1)) {
        text[at] = 'e';
        const int place = static_cast<int>(at);
        PushRun(runs, done, place, plain);
        PushRun(runs, place, place + 1, symbol);
        done = place + 1;
    }
    PushRun(runs, done, static_cast<int>(text.size()), plain);
    surface.SetContent(std::move(text), runs);
}

void ReformatWA(Colour colour) {
    RichTextBox& surface = WorkArea.RTB;
    ShowExpression(surface, TakenIn(PlainText({surface.GetText(), surface.Runs()})), colour);
}

}  // namespace tessaryn
