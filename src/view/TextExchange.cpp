#include "view/TextExchange.h"

#include <utility>

#include "mainwindow/Proof.h"
#include "platform/Events.h"
#include "platform/Platform.h"
#include "text/Rtf.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

void ReplaceAll(std::string& text, const std::string& sign, const char* by) {
    for (auto at = text.find(sign); at != text.npos; at = text.find(sign, at + 1)) {
        text.replace(at, sign.size(), by);
    }
}

bool TakesRich(const Clip& content) {
    return Proof.optRichTextMode.Checked && !content.rtf.empty();
}

}  // namespace

// --- signs

std::string WithElementSign(std::string text) {
    ReplaceAll(text, "ε", "@");
    ReplaceAll(text, "∈", "@");
    return text;
}

std::string TakenIn(std::string text) {
    std::string taken = WithElementSign(std::move(text));
    std::erase(taken, '\t');
    return taken;
}

std::string TakenInOnOneLine(std::string text) {
    std::string taken = TakenIn(std::move(text));
    std::erase_if(taken, [](char c) { return c == '\r' || c == '\n'; });
    return taken;
}

std::string PlainText(const RichText& content) {
    std::string plain;
    bool behindTriangle = false;
    for (const FormatRun& run : content.runs) {
        for (int at = run.start; at < run.start + run.length; ++at) {
            const char c = content.text[static_cast<std::size_t>(at)];
            const bool triangle = run.format.Font == TriangleFont && (c == '4' || c == '5');
            if (!triangle && !(behindTriangle && c == ' ')) {
                plain += run.format.Font == SymbolFont && c == 'e' ? '@' : c;
            }
            behindTriangle = triangle;
        }
    }
    return plain;
}

// --- out

LateClip SelectionOf(const RichTextBox& box) {
    const bool rich = Proof.optRichTextMode.Checked;
    return {rich, [rich, selection = LateSelection(box)] {
                const RichText part = selection();
                return Clip{PlainText(part), rich ? WriteRtf(part) : ""};
            }};
}

void Copy(RichTextBox& box) {
    box.SetFocus();
    if (box.SelLength == 0) return Beep("Nothing is selected: select the text to copy first.");
    ClipLength = box.SelLength;
    SetClipboard(SelectionOf(box));
}

// --- in

void LoadWorkArea(const Clip& content) {
    WorkArea.RTB.TextRTF = TakesRich(content) ? content.rtf : "";
    if (!TakesRich(content)) WorkArea.RTB.Text = content.plain;
    ReformatWA(Black);
}

void PutIn(RichTextBox& box, const Clip& content) {
    BoxUndoText = box.TextRTF;
    box.SelText = "";
    const auto caret = static_cast<std::size_t>(box.SelStart());
    const std::string behind = TakenIn(ConvertEpsilon(box).substr(caret));
    RichTextBox& work = WorkArea.RTB;
    work.TextRTF = box.TextRTF;
    work.SelStart = box.SelStart;
    if (TakesRich(content)) {
        work.SelRTF = content.rtf;
    } else {
        work.SelFontName = StatementFont;
        work.SelText = content.plain;
    }
    ReformatWA(Black);
    box.TextRTF = work.TextRTF;
    box.SelStart = box.TextLength() - static_cast<int>(behind.size());
    box.SetFocus();
}

void MoveSelection(RichTextBox& box, int to) {
    const int from = box.SelStart;
    const int length = box.SelLength;
    if (to >= from && to <= from + length) return;
    const Clip content = SelectionOf(box).make();
    const int lengthBefore = box.TextLength();
    box.SelStart = to;
    SendPaste(box, content);
    const int grown = box.TextLength() - lengthBefore;
    const int caret = box.SelStart;
    box.SelStart = to < from ? from + grown : from;
    box.SelLength = length;
    box.SelText = "";
    box.SelStart = to < from ? caret : caret - length;
}

void Paste(RichTextBox& box) {
    const int caret = box.SelStart;
    PutIn(box, ClipboardContent());
    box.SelStart = caret + ClipLength;
}

}  // namespace tessaryn
