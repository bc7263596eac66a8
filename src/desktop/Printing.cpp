// The printer: the system's default one or, where there is none, a PDF file.
//
// Lines are laid out as they come, so that a long proof needs no more memory than a page. A line
// that is too long for the paper goes on in the next row.
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <string>

#include "desktop/PaintedText.h"
#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "output/Settings.h"
#include "platform/Platform.h"

namespace tessaryn {

namespace {

constexpr int TwipsPerInch = 1440;
constexpr int PointsPerInch = 72;
constexpr int TabStop = 720;  // twips

struct PrinterJob {
    std::unique_ptr<QPainter> painter;  // goes ahead of the printer that it paints on
    std::unique_ptr<QPrinter> printer;
    RichTextBox* surface = nullptr;
    int width = 0;  // of a line, in twips
};

PrinterJob& Job() {
    static PrinterJob job;
    return job;
}

double Dots(int twips) {
    return static_cast<double>(twips) * Job().printer->resolution() / TwipsPerInch;
}

int Twips(double dots) {
    return static_cast<int>(std::lround(dots * TwipsPerInch / Job().printer->resolution()));
}

// In dots, as a layout on its own knows no device.
QFont PrintedFont(const CharFormat& format) {
    QFont font = FontOf(format);
    font.setPixelSize(format.Size * Job().printer->resolution() / PointsPerInch);
    return font;
}

PrinterState AskForPdf(QPrinter& printer) {
    const std::string name = ProofFileName.empty() ? "" : WithExtension(ProofFileName, "pdf");
    CommonDialog choice{name, "PDF (*.pdf)|*.pdf", DefaultDir, true, false};
    if (!ShowSave(choice)) return PrinterState::Cancelled;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(ToQt(choice.FileName));
    return PrinterState::Ready;
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

int StartOfLine(const std::string& text, int position) {
    if (position == 0) return 0;
    const std::size_t end = text.rfind('\n', static_cast<std::size_t>(position) - 1);
    return end == std::string::npos ? 0 : static_cast<int>(end) + 1;
}

}  // namespace

PrinterState ReadyPrinter(PrinterPage& page) {
    ReleasePrinter();
    PrinterJob& job = Job();
    const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
    job.printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (standard.isNull()) {
        const PrinterState state = AskForPdf(*job.printer);
        if (state != PrinterState::Ready) return state;
    } else {
        job.printer->setPrinterName(standard.printerName());
    }
    if (!job.printer->isValid()) return PrinterState::Failed;
    job.printer->setFullPage(true);  // coordinates from the edges of the paper
    const QRectF paper = job.printer->paperRect(QPrinter::DevicePixel);
    page = {Twips(paper.width()), Twips(paper.height()), 0, 0};
    return PrinterState::Ready;
}

bool LayOutForPrinter(RichTextBox& surface, int width) {
    Job().surface = &surface;
    Job().width = width;
    return true;
}

bool StartPrinting() {
    PrinterJob& job = Job();
    job.painter = std::make_unique<QPainter>();
    return job.painter->begin(job.printer.get());
}

int PrintRange(int from, const PageRect& rect) {
    const PrinterJob& job = Job();
    const std::string& text = job.surface->GetText();
    const double bottom = Dots(rect.Bottom);
    double y = Dots(rect.Top);
    bool empty = true;  // a row that is higher than the page goes on it all the same
    for (int start = StartOfLine(text, from); start < job.surface->TextLength();) {
        const PrintedLine line(*job.surface, start);
        for (int row = 0; row < line.RowCount(); ++row) {
            if (line.RowStart(row) < from) continue;
            const QTextLine shown = line.Row(row);
            if (!empty && y + shown.height() > bottom) return line.RowStart(row);
            shown.draw(job.painter.get(), QPointF(Dots(rect.Left), y) - shown.position());
            y += shown.height();
            empty = false;
        }
        start = line.Next();
    }
    return job.surface->TextLength();
}

bool NextPage() {
    return Job().printer->newPage();
}

bool EndPrinting() {
    return Job().painter->end() && Job().printer->printerState() != QPrinter::Error;
}

void CancelPrinting() {
    Job().printer->abort();
}

void ReleasePrinter() {
    Job() = {};
}

}  // namespace tessaryn
