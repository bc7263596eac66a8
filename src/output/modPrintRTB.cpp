// The pages of a surface. The platform's printer measures in twips here, and does the drawing.
#include <utility>

#include "output/Printing.h"
#include "platform/Platform.h"

namespace tessaryn {
namespace {

constexpr const char* PrinterFailed = "The printer failed.";

PrinterPage Page;  // of the printer that has been readied

PageRect Between(int leftMargin, int topMargin, int rightMargin, int bottomMargin) {
    return {leftMargin - Page.OffsetX, topMargin - Page.OffsetY,
            Page.Width - rightMargin - Page.OffsetX, Page.Height - bottomMargin - Page.OffsetY};
}

// Ends with the position where nothing went on the page any more; that of the end if all is well.
int PrintPages(RichTextBox& surface, const PageRect& rect) {
    int next = PrintRange(0, rect);
    while (next < surface.TextLength() && NextPage()) {
        const int printed = PrintRange(next, rect);
        if (printed <= next) return next;
        next = printed;
    }
    return next;
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

PrintResult PrintRTF(RichTextBox& surface, int leftMargin, int topMargin, int rightMargin,
                     int bottomMargin) {
    bool good = StartPrinting();
    if (good) {
        const PageRect rect = Between(leftMargin, topMargin, rightMargin, bottomMargin);
        const bool whole = PrintPages(surface, rect) >= surface.TextLength();
        if (!whole) CancelPrinting();
        if (whole) PrintFault = EndPrinting();
        good = whole && PrintFault.empty();
    }
    ReleasePrinter();
    return good ? PrintResult::Done : PrintResult::Failed;
}

void ResetPrinting() {
    Page = {};
    PrintFault.clear();
}

}  // namespace tessaryn
