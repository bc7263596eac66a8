// The pages of a surface. The platform's printer measures in twips here, and does the drawing.
#include <memory>
#include <utility>

#include "mainwindow/Proof.h"
#include "output/Printing.h"
#include "platform/LongWork.h"
#include "platform/Platform.h"

namespace tessaryn {
namespace {

constexpr const char* PrinterFailed = "The printer failed.";

PrinterPage Page;  // of the printer that has been readied

PageRect Between(int leftMargin, int topMargin, int rightMargin, int bottomMargin) {
    return {leftMargin - Page.OffsetX, topMargin - Page.OffsetY,
            Page.Width - rightMargin - Page.OffsetX, Page.Height - bottomMargin - Page.OffsetY};
}

struct Pages {
    int next = 0;  // the position where the next one begins
    bool stuck = false;
};

// Gives the share that is on paper; 1 also where nothing goes on the page any more.
double PrintPage(RichTextBox& surface, const PageRect& rect, Pages& pages) {
    const int length = surface.TextLength();
    const int begin = pages.next;
    if (begin == 0 || NextPage()) pages.next = PrintRange(begin, rect);
    pages.stuck = pages.next <= begin && begin < length;
    return pages.stuck || pages.next >= length ? 1 : double(pages.next) / length;
}

// The end of a job, whichever it comes to.
PrintResult EndJob(bool whole, bool stuck) {
    const bool good = whole && !stuck;
    if (!good) CancelPrinting();
    if (good) PrintFault = EndPrinting();
    if (!whole) return PrintResult::Cancelled;
    return good && PrintFault.empty() ? PrintResult::Done : PrintResult::Failed;
}

}  // namespace

void WYSIWYG_RTF(RichTextBox& surface, int leftMargin, int rightMargin, int topMargin,
                 int bottomMargin, std::function<void(PrintResult, int, int)> then) {
    PrintFault = PrinterFailed;
    ReadyPrinter(
        [=, &surface, then = std::move(then)](PrinterState state, const PrinterPage& page) {
            if (state == PrinterState::Cancelled) return then(PrintResult::Cancelled, 0, 0);
            if (state == PrinterState::Failed) return then(PrintResult::Failed, 0, 0);
            Page = page;
            const PageRect rect = Between(leftMargin, topMargin, rightMargin, bottomMargin);
            const int width = rect.Right - rect.Left;
            const int height = rect.Bottom - rect.Top;
            const bool fits = width > 0 && height > 0 && LayOutForPrinter(surface, width);
            if (!fits) ReleasePrinter();
            then(fits ? PrintResult::Done : PrintResult::Failed, width, height);
        });
}

void PrintRTF(RichTextBox& surface, int leftMargin, int topMargin, int rightMargin,
              int bottomMargin, std::function<void(PrintResult)> then) {
    const PageRect rect = Between(leftMargin, topMargin, rightMargin, bottomMargin);
    const auto pages = std::make_shared<Pages>();
    const auto fail = [pages](const char*) { pages->stuck = true; };
    RunHandler([pages] { pages->stuck = !StartPrinting(); }, fail);
    const auto page = [=, &surface] {
        double share = 1;
        if (!pages->stuck) RunHandler([&] { share = PrintPage(surface, rect, *pages); }, fail);
        return share;
    };
    const auto end = [=, then = std::move(then)](bool whole) {
        PrintResult result = PrintResult::Failed;
        RunHandler([&] { result = EndJob(whole, pages->stuck); }, fail);
        ReleasePrinter();
        then(result);
    };
    DoInPieces({"Printing...", page, end});
}

void ResetPrinting() {
    Page = {};
    PrintFault.clear();
}

}  // namespace tessaryn
