#include "rules/OccurrenceBox.h"

#include <utility>

#include "expr/Occurrences.h"
#include "expr/Parse.h"
#include "mainwindow/Proof.h"
#include "view/Display.h"

namespace tessaryn {

void CopyContent(RichTextBox& from, RichTextBox& to) {
    to.SetContent(from.GetText(), from.Runs());
    to.SelStart = 0;
}

void ShowOccurrences(const std::string& text, const NodeList& term, RichTextBox& box,
                     RichTextBox& saved) {
    box.TextRTF = "";
    saved.TextRTF = "";
    const Expression statement = ParseExpression(text);
    if (!statement.error.empty()) return Beep(statement.error);
    RichTextBox& work = WorkArea.RTB;
    work.TextRTF = "";  // with the text go formats that would be taken over
    work.Text = text;
    ReformatWA(Black);
    for (const Span& span : AllOccurrences(term, statement, Search::OutermostOnly)) {
        work.SetFormat(span.start - 1, span.end - span.start + 1,
                       {StatementFont, StmtFontSize, CandidateBlue, true});
    }
    CopyContent(work, box);
    CopyContent(work, saved);
}

Expression ExpressionIn(RichTextBox& box) {
    return ParseExpression(ConvertEpsilon(box));
}

// One pass over the box, so that many occurrences cost no more than its length.
void ReplaceSpans(RichTextBox& box, const std::vector<Span>& spans, const std::string& text,
                  Colour colour) {
    const std::string& old = box.GetText();
    std::string content;
    std::vector<FormatRun> runs;
    int done = 0;
    const auto keepUpTo = [&](int end) {
        const int shift = static_cast<int>(content.size()) - done;
        for (FormatRun run : box.RunsIn(done, end)) {
            run.start += shift;
            runs.push_back(std::move(run));
        }
        content.append(old, static_cast<std::size_t>(done), static_cast<std::size_t>(end - done));
    };
    for (const Span& span : spans) {
        keepUpTo(span.start - 1);
        runs.push_back({static_cast<int>(content.size()),
                        static_cast<int>(text.size()),
                        {StatementFont, StmtFontSize, colour, false}});
        content += text;
        done = span.end;
    }
    keepUpTo(box.TextLength());
    box.SetContent(content, runs);
    box.SelStart = 0;
}

}  // namespace tessaryn
