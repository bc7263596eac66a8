// The copy that goes to the printer: text and formats of the pages.
#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>
#include <vector>

#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/Printing.h"
#include "text/Utf8.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

constexpr int FoldingWidth = 55;  // characters
constexpr std::string_view LineEnd = "\r\n";

constexpr int CaptionSize = 12;
constexpr int TextSize = 10;
constexpr int AnnotationSize = 8;

// Text with its formats, put together piece by piece, element signs as they are shown.
class Copy {
  public:
    Copy(std::size_t expectedLength, std::size_t expectedRuns) {
        text_.reserve(expectedLength);
        runs_.reserve(expectedRuns);
    }

    void Append(std::string_view text, int size, bool bold = false) {
        for (std::size_t at = 0; at < text.size();) {
            const bool sign = text[at] == '@';
            const std::size_t end = sign ? at + 1 : std::min(text.find('@', at), text.size());
            AppendRun(sign ? "e" : text.substr(at, end - at), sign, size, bold);
            at = end;
        }
    }
    void PutOn(RichTextBox& surface) { surface.SetContent(std::move(text_), runs_); }

  private:
    void AppendRun(std::string_view text, bool sign, int size, bool bold) {
        const int start = static_cast<int>(text_.size());
        const int length = static_cast<int>(text.size());
        text_ += text;
        const auto goesOn = [&](const CharFormat& last) {
            return last.Size == size && last.Bold == bold && sign == lastIsSign_;
        };
        if (!runs_.empty() && goesOn(runs_.back().format)) {
            runs_.back().length += length;
            return;
        }
        runs_.push_back({start, length, {sign ? SymbolFont : StatementFont, size, Black, bold}});
        lastIsSign_ = sign;
    }

    std::string text_;
    std::vector<FormatRun> runs_;
    bool lastIsSign_ = false;
};

std::string Folded(std::string_view text) {
    std::string folded(text);
    RemoveTabs(folded);
    InsertBreaks(folded, FoldingWidth);
    return folded;
}

void AppendCaption(Copy& copy) {
    std::string caption = ProofCaption;
    InsertBreaks(caption, FoldingWidth);
    copy.Append(caption, CaptionSize, true);
    copy.Append("\r\n\r\n", TextSize);
}

void AppendStatement(Copy& copy, int number) {
    const Statement& stmt = StmtTable[number];
    if (stmt.EndUserComment > 0) {
        copy.Append(Folded(ProofSlice(stmt.StartLine, stmt.EndUserComment)) + "\r\n\r\n", TextSize);
    }
    std::string text = Folded(StoredText(number));
    InsertTabs(text);
    copy.Append(std::to_string(number) + "\t", TextSize);
    copy.Append(text += "\r\n\t", TextSize);
    const int triangle = IsConclusion(stmt) ? 2 : 0;  // it and its blank are not printed
    copy.Append(ProofSlice(stmt.StartRule + triangle, stmt.EndRule), AnnotationSize);
    copy.Append("\r\n\r\n", TextSize);
}

}  // namespace

void InsertBreaks(std::string& text, int width) {
    const bool isOneLine = text.find('\r') == std::string::npos;
    if (isOneLine && text.size() <= static_cast<std::size_t>(width)) return;
    std::string folded;
    folded.reserve(text.size() + text.size() / 32);
    int column = 0;
    std::size_t at = 0;
    while (at + 1 < text.size()) {
        if (column >= width) {
            const std::size_t end = text.find_first_of(" \r", at);
            if (end == std::string::npos) break;
            folded.append(text, at, end - at);
            folded += LineEnd;
            at = std::min(text.size(), end + (text[end] == ' ' ? 1 : LineEnd.size()));
            column = 0;
        } else if (text[at] == '\r') {
            folded += LineEnd;
            at = std::min(text.size(), at + LineEnd.size());
            column = 0;
        } else {
            const int length = SequenceLength(text, static_cast<int>(at));
            folded.append(text, at, static_cast<std::size_t>(length));
            at += static_cast<std::size_t>(length);
            ++column;
        }
    }
    folded.append(text, at);
    text = std::move(folded);
}

void InsertTabs(std::string& text) {
    if (text.find('\n') == std::string::npos) return;
    std::string aligned;
    aligned.reserve(text.size() + 8);
    for (const char c : text) {
        aligned += c;
        if (c == '\n') aligned += '\t';
    }
    text = std::move(aligned);
}

void BuildPrintCopy(int first, int last) {
    const auto lines = static_cast<std::size_t>(last - first + 1);
    Copy copy(ProofText.size() + 8 * lines, 2 * lines);
    if (!ProofCaption.empty()) AppendCaption(copy);
    if (first == 1 && IntroEnd > 0) copy.Append(ProofSlice(1, IntroEnd + 4), TextSize);
    for (int number = first; number <= last; ++number) AppendStatement(copy, number);
    copy.Append(ProofFileName.empty() ? "(Untitled)" : ProofFileName, TextSize);
    copy.PutOn(WorkArea.RTB);
}

std::string PrintTitle() {
    if (!ProofCaption.empty()) return ProofCaption;
    return ProofFileName.empty() ? "Untitled"
                                 : std::filesystem::path(ProofFileName).stem().string();
}

void PrintStatements(int first, int last, std::function<void(PrintResult)> then) {
    BuildPrintCopy(first, last);
    const auto print = [then = std::move(then)](PrintResult result, int, int) {
        if (result != PrintResult::Done) return then(result);
        PrintRTF(WorkArea.RTB, Inch, Inch, Inch, Inch, then);
    };
    WYSIWYG_RTF(WorkArea.RTB, Inch, Inch, Inch, Inch, print);
}

}  // namespace tessaryn
