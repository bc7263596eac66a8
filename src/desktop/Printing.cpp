// The printer: the system's default one or, where there is none, a PDF file, which is written as a
// proof is when all pages are there.
//
// Lines are laid out as they come, so that a long proof needs no more memory than a page. A line
// that is too long for the paper goes on in the next row.
#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <deque>
#include <limits>
#include <memory>
#include <string>
#include <utility>

#include "desktop/PaintedText.h"
#include "mainwindow/ProgramState.h"
#include "output/Printing.h"
#include "output/ProofCommands.h"
#include "output/Settings.h"
#include "platform/Files.h"
#include "platform/PageEnd.h"
#include "platform/Platform.h"

namespace tessaryn {

namespace {

constexpr int TwipsPerInch = 1440;
constexpr int PointsPerInch = 72;
constexpr int TabStop = 720;  // twips

struct PrinterJob {
    std::unique_ptr<QBuffer> pdf;              // what the pages of a PDF are written to
    std::unique_ptr<QPagedPaintDevice> paper;  // these, or the printer
    std::unique_ptr<QPainter> painter;         // goes ahead of what it paints on
    QPrinter* printer = nullptr;               // the paper, if it is one
    std::string pdfName;
    RichTextBox* surface = nullptr;
    int width = 0;  // of a line, in twips
};

PrinterJob& Job() {
    static PrinterJob job;
    return job;
}

double Dots(int twips) {
    return static_cast<double>(twips) * Job().paper->logicalDpiX() / TwipsPerInch;
}

int Twips(double dots) {
    return static_cast<int>(std::lround(dots * TwipsPerInch / Job().paper->logicalDpiX()));
}

// In dots, as a layout on its own knows no device.
QFont PrintedFont(const CharFormat& format) {
    QFont font = FontOf(format);
    font.setPixelSize(format.Size * Job().paper->logicalDpiX() / PointsPerInch);
    return font;
}

using PrinterReady = std::function<void(PrinterState, const PrinterPage&)>;

void Ready(const PrinterReady& then) {
    QPagedPaintDevice& paper = *Job().paper;
    QPageLayout layout = paper.pageLayout();
    layout.setMode(QPageLayout::FullPageMode);  // coordinates from the edges of the paper
    paper.setPageLayout(layout);
    const QRect page = layout.fullRectPixels(paper.logicalDpiX());
    then(PrinterState::Ready, {Twips(page.width()), Twips(page.height()), 0, 0});
}

void ReadyPdf() {
    PrinterJob& job = Job();
    job.pdf = std::make_unique<QBuffer>();
    job.pdf->open(QIODevice::WriteOnly);
    auto pages = std::make_unique<QPdfWriter>(job.pdf.get());
    pages->setTitle(ToQt(PrintTitle()));
    pages->setPageLayout(QPrinter().pageLayout());  // on the paper that is usual here
    job.paper = std::move(pages);
}

void AskForPdf(PrinterReady then) {
    const std::string name = ProofFileName.empty() ? "" : WithExtension(ProofFileName, "pdf");
    ShowSave({name, "PDF (*.pdf)|*.pdf", DefaultDir, true, false, "Print to PDF"},
             [then = std::move(then)](const ChosenFile& file) {
                 if (!file) return then(PrinterState::Cancelled, {});
                 ReadyPdf();
                 Job().pdfName = *file;
                 Ready(then);
             });
}

// One line of the surface, in as many rows as it takes.
class PrintedLine {
  public:
    PrintedLine(RichTextBox& surface, int first)
        : first_(first), text_(PaintText(surface, first, EndOfText(surface, first))) {
        const std::string& stored = surface.GetText();
        next_ = std::min(text_.bytes.back() + 2, static_cast<int>(stored.size()));
        layout_.setText(text_.text);
        layout_.setFont(PrintedFont(surface.FormatAt(first)));
        SetFormats();
        LayOutRows();
    }
    int RowCount() const { return layout_.lineCount(); }
    int RowStart(int row) const {
        return row == 0 ? first_ : text_.bytes[static_cast<std::size_t>(Row(row).textStart())];
    }
    QTextLine Row(int row) const { return layout_.lineAt(row); }
    int Next() const { return next_; }  // where the line behind it starts

  private:
    static int EndOfText(RichTextBox& surface, int first) {
        const std::size_t end = surface.GetText().find("\r\n", static_cast<std::size_t>(first));
        return end == std::string::npos ? surface.TextLength() : static_cast<int>(end);
    }
    void SetFormats() {
        QList<QTextLayout::FormatRange> ranges;
        for (const PaintedText::Span& span : text_.spans) {
            QTextLayout::FormatRange range;
            range.start = span.start;
            range.length = span.length;
            range.format.setFont(PrintedFont(span.format));
            range.format.setForeground(QColor::fromRgb(span.format.Color));
            ranges.append(range);
        }
        layout_.setFormats(ranges);
    }
    void LayOutRows() {
        QTextOption option;
        option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        option.setTabStopDistance(Dots(TabStop));
        layout_.setTextOption(option);
        layout_.beginLayout();
        for (QTextLine row = layout_.createLine(); row.isValid(); row = layout_.createLine()) {
            row.setLineWidth(Dots(Job().width));
        }
        layout_.endLayout();
    }

    int first_;
    int next_ = 0;
    PaintedText text_;
    QTextLayout layout_;
};

struct PageRoom {
    double left = 0;    // of the page's height, in dots
    bool empty = true;  // a row that is higher than the page goes on it all the same
};

// Takes up room for the rows of a line, from a position on. The start of the first row that does
// not fit; -1 if all do.
int FirstRowBeyond(const PrintedLine& line, int from, PageRoom& room) {
    for (int row = 0; row < line.RowCount(); ++row) {
        if (line.RowStart(row) < from) continue;
        const double height = line.Row(row).height();
        if (!room.empty && height > room.left) return line.RowStart(row);
        room.left -= height;
        room.empty = false;
    }
    return -1;
}

// Draws the rows that start between two positions. Gives the place below them.
QPointF Draw(const PrintedLine& line, int from, int end, QPointF place) {
    for (int row = 0; row < line.RowCount(); ++row) {
        if (line.RowStart(row) < from || line.RowStart(row) >= end) continue;
        const QTextLine shown = line.Row(row);
        shown.draw(Job().painter.get(), place - shown.position());
        place.ry() += shown.height();
    }
    return place;
}

}  // namespace

void ReadyPrinter(PrinterReady then) {
    ReleasePrinter();
    const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
    if (standard.isNull()) return AskForPdf(std::move(then));
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(standard.printerName());
    printer->setDocName(ToQt(PrintTitle()));
    Job().printer = printer.get();
    Job().paper = std::move(printer);
    if (!Job().printer->isValid()) return then(PrinterState::Failed, {});
    Ready(then);
}

bool LayOutForPrinter(RichTextBox& surface, int width) {
    Job().surface = &surface;
    Job().width = width;
    return true;
}

bool StartPrinting() {
    PrinterJob& job = Job();
    job.painter = std::make_unique<QPainter>();
    return job.painter->begin(job.paper.get());
}

int PrintRange(int from, const PageRect& rect) {
    RichTextBox& surface = *Job().surface;
    const std::string& text = surface.GetText();
    std::deque<PrintedLine> lines;
    PageRoom room{Dots(rect.Bottom) - Dots(rect.Top)};
    int beyond = -1;
    for (int start = LineStart(text, from); beyond < 0 && start < surface.TextLength();) {
        lines.emplace_back(surface, start);
        beyond = FirstRowBeyond(lines.back(), from, room);
        start = lines.back().Next();
    }
    const int end = beyond < 0 ? surface.TextLength() : PageEnd(text, from, beyond);
    QPointF place(Dots(rect.Left), Dots(rect.Top));
    for (const PrintedLine& line : lines) place = Draw(line, from, end, place);
    return end;
}

bool NextPage() {
    return Job().paper->newPage();
}

std::string EndPrinting() {
    const PrinterJob& job = Job();
    const bool good = job.painter->end() &&
                      (job.printer == nullptr || job.printer->printerState() != QPrinter::Error);
    if (!good) return "The printer failed.";
    return job.pdf == nullptr ? "" : ReplaceFile(job.pdfName, job.pdf->data().toStdString());
}

void CancelPrinting() {
    if (Job().printer != nullptr) Job().printer->abort();
}

void ReleasePrinter() {
    Job().painter.reset();
    Job().paper.reset();
    Job() = {};
}

}  // namespace tessaryn
