// A printer of plain pages: A4 in a typewriter's metrics. Lines are measured as they would stand on
// paper, so that pages break where those of a real printer do; a line that is too long for the
// paper stays one line here.
#include <algorithm>
#include <string>
#include <vector>

#include "cli/FormState.h"
#include "cli/HeadlessPlatform.h"
#include "platform/LongWork.h"
#include "platform/PageEnd.h"
#include "platform/Platform.h"
#include "text/Utf8.h"

namespace tessaryn {

namespace {

constexpr int PageWidth = 11906;   // of A4, in twips
constexpr int PageHeight = 16838;  //
constexpr int TabStop = 720;

struct Line {
    int start = 0;   // its first byte in the surface
    int height = 0;  // twips, for all rows that it takes on paper
    std::string text;
};

struct Printer {
    std::vector<Line> lines;
    RichTextBox* surface = nullptr;
    std::vector<std::string> pages;
};

Printer Job;

int CharWidth(int size) {
    return size * 12;
}

int RowHeight(int size) {
    return size * 20 * 17 / 15;
}

int WidthBehind(char character, int width, int size) {
    if (character == '\t') return (width / TabStop + 1) * TabStop;
    return width + CharWidth(size);
}

// Cuts the surface into lines and measures them.
class Measurer {
  public:
    Measurer(RichTextBox& surface, int pageWidth) : surface_(surface), pageWidth_(pageWidth) {}

    std::vector<Line> Lines() {
        const std::string& stored = surface_.GetText();
        for (const FormatRun& run : surface_.Runs()) {
            const int end = run.start + run.length;
            for (int at = run.start; at < end; at += SequenceLength(stored, at)) {
                Take(stored[static_cast<std::size_t>(at)], run.format.Size, at);
            }
        }
        Finish(surface_.TextLength());
        return std::move(lines_);
    }

  private:
    // The character that begins with a byte, the one at a position of the surface.
    void Take(char character, int size, int at) {
        size_ = std::max(size_, size);
        if (character == '\n') return Finish(at + 1);
        if (character != '\r') width_ = WidthBehind(character, width_, size);
    }
    void Finish(int next) {
        if (next == start_) return;
        const int rows = std::max(1, (width_ + pageWidth_ - 1) / pageWidth_);
        lines_.push_back({start_, rows * RowHeight(size_), ""});
        start_ = next;
        width_ = size_ = 0;
    }

    RichTextBox& surface_;
    int pageWidth_;
    std::vector<Line> lines_;
    int start_ = 0;  // of the line under way
    int width_ = 0;
    int size_ = 0;
};

// The lines' texts, with an epsilon for each element sign and "\n" as line end.
void FillTexts(std::vector<Line>& lines, RichTextBox& surface) {
    std::string text = TextWithSigns(surface, {"ε", "▶", "▲"});
    std::erase(text, '\r');
    std::size_t at = 0;
    for (Line& line : lines) {
        const std::size_t end = std::min(text.find('\n', at), text.size() - 1) + 1;
        line.text = text.substr(at, end - at);
        at = end;
    }
}

}  // namespace

void ReadyPrinter(std::function<void(PrinterState, const PrinterPage&)> then) {
    Job = {};
    if (EndedForWantOfFiles()) return;
    then(Headless.HasPrinter ? PrinterState::Ready : PrinterState::Failed,
         {PageWidth, PageHeight, 0, 0});
}

bool LayOutForPrinter(RichTextBox& surface, int width) {
    Job.lines = Measurer(surface, width).Lines();
    Job.surface = &surface;
    FillTexts(Job.lines, surface);
    return true;
}

bool StartPrinting() {
    Job.pages.assign(1, "");
    return true;
}

int PrintRange(int from, const PageRect& rect) {
    int room = rect.Bottom - rect.Top;
    const auto lineAt = [](int position) {
        return std::lower_bound(Job.lines.begin(), Job.lines.end(), position,
                                [](const Line& one, int start) { return one.start < start; });
    };
    const auto first = lineAt(from);
    auto beyond = first;
    while (beyond != Job.lines.end() && (beyond == first || beyond->height <= room)) {
        room -= beyond->height;
        ++beyond;
    }
    const int end = beyond == Job.lines.end()
                        ? Job.surface->TextLength()
                        : PageEnd(Job.surface->GetText(), from, beyond->start);
    for (auto line = first; line != lineAt(end); ++line) Job.pages.back() += line->text;
    return end;
}

bool NextPage() {
    Job.pages.emplace_back();
    return true;
}

std::string EndPrinting() {
    Headless.Pages = std::move(Job.pages);
    return "";
}

void DoInPieces(const LongWork& work) {
    while (work.piece() < 1) {
    }
    work.then(true);
}

void CancelPrinting() {
    Job.pages.clear();
}

void ReleasePrinter() {
    Job = {};
}

}  // namespace tessaryn
