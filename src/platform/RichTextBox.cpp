#include "platform/RichTextBox.h"

#include <algorithm>
#include <utility>

#include "text/Rtf.h"
#include "text/TextSteps.h"

namespace tessaryn {

namespace {

std::vector<FormatRun> OneRun(std::size_t length, const CharFormat& format) {
    return {{0, static_cast<int>(length), format}};
}

}  // namespace

RichTextBox::RichTextBox(Form& parent, std::string name) : Control(parent, std::move(name)) {}

// --- what changed

void RichTextBox::Record(const SurfaceChange& change) {
    if (!change.any) return;
    change_ = MergedChange(change_, change);
    ++contentRevision_;
}

SurfaceChange RichTextBox::TakeChange() {
    return std::exchange(change_, {});
}

// --- selection

int RichTextBox::Limited(int position) const {
    return std::clamp(position, 0, TextLength());
}

// Both must lie within the text. Moving the caret drops the format set for the insertion.
void RichTextBox::Select(int start, int length) {
    if (start == selStart_ && length == selLength_) return;
    selStart_ = start;
    selLength_ = length;
    insertion_.reset();
}

void RichTextBox::SetSelStart(int position) {
    Select(CharStart(GetText(), Limited(position)), 0);
    if (placesToShow_.size() == 2) placesToShow_.erase(placesToShow_.begin());
    placesToShow_.push_back(selStart_);
}

std::vector<int> RichTextBox::TakePlacesToShow() {
    return std::exchange(placesToShow_, {});
}

void RichTextBox::SetSelLength(int length) {
    const int end = selStart_ + std::clamp(length, 0, TextLength() - selStart_);
    Select(selStart_, CharEnd(GetText(), end) - selStart_);
}

std::string RichTextBox::GetSelText() const {
    return GetText().substr(static_cast<std::size_t>(selStart_),
                            static_cast<std::size_t>(selLength_));
}

// --- content

// Where the new content is the same as the old, the front end has nothing to do.
void RichTextBox::ReplaceContent(std::string text, const std::vector<FormatRun>& runs) {
    Record(content_.Assign(std::move(text), runs));
    Select(0, 0);
    insertion_.reset();
}

void RichTextBox::SetText(const std::string& text) {
    std::string normal = WithCrLf(text);
    const auto runs = OneRun(normal.size(), FormatAt(0));
    SetContent(std::move(normal), runs);
}

void RichTextBox::SetContent(std::string text, const std::vector<FormatRun>& runs) {
    lastFormat_ = FormatAt(0);
    ReplaceContent(std::move(text), runs);
}

std::string RichTextBox::GetTextRTF() const {
    return WriteRtf({GetText(), content_.RunsIn(0, TextLength()), alignment_});
}

void RichTextBox::SetTextRTF(const std::string& rtf) {
    RichText content = ReadRtf(rtf);
    lastFormat_ = content.runs.empty() ? CharFormat() : content.runs.front().format;
    SetSelAlignment(content.alignment);
    ReplaceContent(std::move(content.text), content.runs);
}

RichText RichTextBox::Selection() const {
    RichText part{GetSelText(), content_.RunsIn(selStart_, selStart_ + selLength_), alignment_};
    for (FormatRun& run : part.runs) run.start -= selStart_;
    return part;
}

std::string RichTextBox::GetSelRTF() const {
    return WriteRtf(Selection());
}

void RichTextBox::SetSelRTF(const std::string& rtf) {
    if (!IsRtf(rtf)) return SetSelText(rtf);
    const RichText part = ReadRtf(rtf);
    ReplaceSelection(part.text, part.runs);
    insertion_.reset();
}

void RichTextBox::SetSelText(const std::string& text) {
    const std::string normal = WithCrLf(text);
    CharFormat format = lastFormat_;
    if (insertion_) {
        format = *insertion_;
    } else if (selStart_ > 0) {
        format = content_.FormatAt(selStart_ - 1);
    } else if (selLength_ < TextLength()) {
        format = content_.FormatAt(selLength_);
    } else if (TextLength() > 0) {
        format = content_.FormatAt(0);  // all of it is replaced
    }
    ReplaceSelection(normal, OneRun(normal.size(), format));
}

// The format set for the insertion outlives the caret's own move.
void RichTextBox::ReplaceSelection(std::string_view text, const std::vector<FormatRun>& runs) {
    if (TextLength() > 0) lastFormat_ = content_.FormatAt(0);
    Record(content_.Replace(selStart_, selLength_, text, runs));
    const auto insertion = std::move(insertion_);
    Select(selStart_ + static_cast<int>(text.size()), 0);
    insertion_ = insertion;
}

void RichTextBox::LoadFromEditor(std::string text, const std::vector<FormatRun>& runs, int replaced,
                                 int selStart, int selLength) {
    if (TextLength() > 0) lastFormat_ = content_.FormatAt(0);
    if (replaced == TextLength()) {
        content_.Assign(std::move(text), runs);
    } else {
        content_.Replace(0, replaced, text, runs);
    }
    ++contentRevision_;
    change_ = {};
    const int start = CharStart(GetText(), Limited(selStart));
    const int end = start + std::clamp(selLength, 0, TextLength() - start);
    Select(start, CharEnd(GetText(), end) - start);
}

void RichTextBox::SetBlocks(std::string_view text, const std::vector<Block>& blocks,
                            BlockFormatter formatter) {
    Record(content_.SetBlocks(text, blocks, std::move(formatter)));
    Select(CharStart(GetText(), Limited(selStart_)), 0);
}

void RichTextBox::SetBlocks(std::size_t first, std::size_t last, std::string_view text,
                            const std::vector<Block>& blocks) {
    Record(content_.SetBlocks(first, last, text, blocks));
    Select(CharStart(GetText(), Limited(selStart_)), 0);
}

// --- attributes

CharFormat RichTextBox::InsertionFormat() const {
    if (insertion_) return *insertion_;
    if (TextLength() == 0) return lastFormat_;
    return content_.FormatAt(std::max(selStart_ - 1, 0));
}

CharFormat RichTextBox::SelFormat() const {
    return selLength_ > 0 ? content_.FormatAt(selStart_) : InsertionFormat();
}

void RichTextBox::Reformat(int start, int length, const TextBlocks::Reformatter& reformatter) {
    const int first = Limited(start);
    Record(content_.Reformat(first, std::clamp(length, 0, TextLength() - first), reformatter));
}

void RichTextBox::ReformatSelection(const TextBlocks::Reformatter& reformatter) {
    if (selLength_ > 0) return Reformat(selStart_, selLength_, reformatter);
    insertion_ = InsertionFormat();
    reformatter(*insertion_);
}

std::string RichTextBox::GetSelFontName() const {
    return SelFormat().Font;
}
int RichTextBox::GetSelFontSize() const {
    return SelFormat().Size;
}
Colour RichTextBox::GetSelColor() const {
    return SelFormat().Color;
}
bool RichTextBox::GetSelBold() const {
    return SelFormat().Bold;
}

void RichTextBox::SetSelFontName(const std::string& font) {
    ReformatSelection([&](CharFormat& format) { format.Font = font; });
}

void RichTextBox::SetSelFontSize(int size) {
    ReformatSelection([&](CharFormat& format) { format.Size = size; });
}

void RichTextBox::SetSelColor(Colour colour) {
    ReformatSelection([&](CharFormat& format) { format.Color = colour; });
}

void RichTextBox::SetSelBold(bool bold) {
    ReformatSelection([&](CharFormat& format) { format.Bold = bold; });
}

void RichTextBox::SetSelAlignment(Alignment alignment) {
    if (alignment == alignment_) return;
    alignment_ = alignment;
    Record({true, 0, TextLength(), TextLength()});
}

std::vector<FormatRun> RichTextBox::RunsIn(int first, int last) {
    return content_.RunsIn(Limited(first), Limited(last));
}

std::vector<FormatRun> RichTextBox::PeekAtRuns() const {
    TextBlocks copy = content_;
    return copy.RunsIn(0, TextLength());
}

CharFormat RichTextBox::FormatAt(int position) {
    if (TextLength() == 0) return InsertionFormat();
    return content_.FormatAt(std::clamp(position, 0, TextLength() - 1));
}

void RichTextBox::SetFormat(int start, int length, const CharFormat& format) {
    Reformat(start, length, [&](CharFormat& old) { old = format; });
}

// --- editing as by the user

void RichTextBox::TypeText(std::string_view text) {
    if (ReadOnly) return;
    std::string typed(text);
    if (!MultiLine) {
        std::erase_if(typed, [](char c) { return c == '\r' || c == '\n'; });
        if (typed.empty()) return;
    }
    SetSelText(typed);
}

void RichTextBox::DeleteForward() {
    if (ReadOnly) return;
    if (selLength_ == 0) {
        const int start = StepStart(GetText(), selStart_);
        Select(start, StepEnd(GetText(), start) - start);
    }
    SetSelText("");
}

void RichTextBox::DeleteBackward() {
    if (ReadOnly) return;
    if (selLength_ == 0) {
        const int end = StepEnd(GetText(), std::max(selStart_ - 1, 0));
        const int start = selStart_ == 0 ? 0 : StepStart(GetText(), selStart_ - 1);
        Select(start, selStart_ == 0 ? 0 : end - start);
    }
    SetSelText("");
}

}  // namespace tessaryn
