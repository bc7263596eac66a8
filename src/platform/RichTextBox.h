// A rich-text surface: the proof display, the editing boxes, the status line and the hidden work
// surfaces are all of this class. It lives in memory alone; the desktop paints it.
//
// Text is UTF-8 with CR LF as line end; a position is a 0-based byte. The element sign is the one
// character "e" in font Symbol, a triangle is "4" or "5" in font Webdings.
//
// The content is a row of blocks, each with its own runs of one format. The proof display has one
// block for each statement, and a block's runs are worked out when someone first asks for them.
// Other content is cut into blocks as suits.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Controls.h"
#include "text/RichText.h"
#include "text/TextBlocks.h"

namespace tessaryn {

struct RichTextBox : Control {
    RichTextBox(Form& parent, std::string name);

    // Lets a member read and assign like a field: box.SelStart = 3.
    template <class T, auto Get, auto Set>
    class Property {
      public:
        explicit Property(RichTextBox& box) : box_(box) {}
        Property(const Property&) = delete;
        operator T() const { return (box_.*Get)(); }  // NOLINT: reads like the field it stands for
        T operator()() const { return (box_.*Get)(); }
        Property& operator=(const T& value) {
            (box_.*Set)(value);
            return *this;
        }
        Property& operator=(const Property& other) {
            (box_.*Set)(other());
            return *this;
        }

      private:
        RichTextBox& box_;
    };

    // --- content and selection, as methods

    const std::string& GetText() const { return content_.Text(); }
    // In one format: that of the first character before, or the one set for the insertion.
    void SetText(const std::string& text);
    void SetContent(std::string text, const std::vector<FormatRun>& runs);  // line ends CR LF
    std::string GetTextRTF() const;
    void SetTextRTF(const std::string& rtf);  // "" empties the surface
    std::string GetSelRTF() const;
    void SetSelRTF(const std::string& rtf);
    int GetSelStart() const { return selStart_; }
    void SetSelStart(int position);  // limited to the text; clears the selection; scrolls there
    int GetSelLength() const { return selLength_; }
    void SetSelLength(int length);
    std::string GetSelText() const;
    RichText Selection() const;  // runs relative to its start
    // Replaces the selection; the caret ends behind the new text, which takes the format set for
    // the insertion, else that of the character ahead of it (of the one behind at the very start).
    void SetSelText(const std::string& text);
    // Attributes of the selection, or of what will be typed when nothing is selected; the first
    // character's where they are mixed.
    std::string GetSelFontName() const;
    void SetSelFontName(const std::string& font);
    int GetSelFontSize() const;
    void SetSelFontSize(int size);
    Colour GetSelColor() const;
    void SetSelColor(Colour colour);
    bool GetSelBold() const;
    void SetSelBold(bool bold);
    Alignment GetSelAlignment() const { return alignment_; }
    void SetSelAlignment(Alignment alignment);

    // --- the same as fields

    using Box = RichTextBox;
    Property<std::string, &Box::GetText, &Box::SetText> Text{*this};
    Property<std::string, &Box::GetTextRTF, &Box::SetTextRTF> TextRTF{*this};
    Property<std::string, &Box::GetSelRTF, &Box::SetSelRTF> SelRTF{*this};
    Property<int, &Box::GetSelStart, &Box::SetSelStart> SelStart{*this};
    Property<int, &Box::GetSelLength, &Box::SetSelLength> SelLength{*this};
    Property<std::string, &Box::GetSelText, &Box::SetSelText> SelText{*this};
    Property<std::string, &Box::GetSelFontName, &Box::SetSelFontName> SelFontName{*this};
    Property<int, &Box::GetSelFontSize, &Box::SetSelFontSize> SelFontSize{*this};
    Property<Colour, &Box::GetSelColor, &Box::SetSelColor> SelColor{*this};
    Property<bool, &Box::GetSelBold, &Box::SetSelBold> SelBold{*this};
    Property<Alignment, &Box::GetSelAlignment, &Box::SetSelAlignment> SelAlignment{*this};

    // --- events

    EventHandler Click;
    EventHandler DblClick;
    EventHandler Change;  // the user has edited the text (not: the program has)
    // Text comes in from elsewhere, to take the place of the selection. Empty: none is let in.
    std::function<void(const Clip&)> Pasted;
    KeyHandler KeyDown;  // every key, ahead of the box's own editing; true: dealt with
    MouseHandler MouseDown;
    EventHandler MouseMove;  // with the left button down
    MouseHandler MouseUp;

    bool ReadOnly = false;
    bool MultiLine = true;

    // --- editing as by the user, where the front end has no editor of its own. Firing Change is
    // the front end's part. A box that is ReadOnly stays as it is.

    void TypeText(std::string_view text);  // replaces the selection, as SelText does
    void DeleteForward();  // the selection, or the character (CR LF as one) behind it
    void DeleteBackward();

    // --- formats

    int TextLength() const { return content_.Length(); }
    // Runs as long as they can be, in order, covering positions first to last - 1.
    std::vector<FormatRun> RunsIn(int first, int last);
    std::vector<FormatRun> Runs() { return RunsIn(0, TextLength()); }
    // The same, but formats that nobody has asked for yet are left for later.
    std::vector<FormatRun> PeekAtRuns() const;
    CharFormat FormatAt(int position);
    // Gives a stretch one format, whatever the selection is. Cheaper than selecting.
    void SetFormat(int start, int length, const CharFormat& format);
    // What typed text gets, as set through the Sel attributes without a selection.
    CharFormat InsertionFormat() const;

    // --- content in blocks, for the display

    using Block = TextBlocks::Block;
    // Gives the runs of block number `index` (0-based), relative to its start and covering it.
    using BlockFormatter = TextBlocks::Formatter;
    // Replaces the whole content. Blocks at the start and at the end that have the same key and
    // bytes as before keep their formats and are not reported as changed; the others are formatted
    // when first needed. Until the next SetBlocks, SetText or SetTextRTF the formatter must stay
    // valid and give a block the runs that belong to its key: what it reads may change only once
    // the block has been reformatted.
    void SetBlocks(std::string_view text, const std::vector<Block>& blocks,
                   BlockFormatter formatter);
    // The same for blocks first to last - 1 alone (0-based); `text` is what stands there then, and
    // the new blocks cover it. The formatter stays, and knows all blocks by their new places.
    void SetBlocks(std::size_t first, std::size_t last, std::string_view text,
                   const std::vector<Block>& blocks);

    // --- for the front end

    // What changed since the last call, formats included.
    SurfaceChange TakeChange();
    // Where SelStart was set to since the last call, the last two places: each is to be scrolled
    // into view, in this order and no further than needed.
    std::vector<int> TakePlacesToShow();
    // Counts changes of content, format or alignment.
    std::uint64_t ContentRevision() const { return contentRevision_; }
    // Replaces the first bytes of the content from the front end's own editor; tells nobody.
    void LoadFromEditor(std::string text, const std::vector<FormatRun>& runs, int replaced,
                        int selStart, int selLength);

  private:
    int Limited(int position) const;
    CharFormat SelFormat() const;
    void Reformat(int start, int length, const TextBlocks::Reformatter& reformatter);
    void ReformatSelection(const TextBlocks::Reformatter& reformatter);
    void ReplaceContent(std::string text, const std::vector<FormatRun>& runs);
    void ReplaceSelection(std::string_view text, const std::vector<FormatRun>& runs);
    void Select(int start, int length);
    void Record(const SurfaceChange& change);

    mutable TextBlocks content_;  // a reader may be the first to need a block's formats
    int selStart_ = 0;
    int selLength_ = 0;
    Alignment alignment_ = Alignment::Left;
    std::optional<CharFormat> insertion_;  // set without a selection, until the caret is moved
    CharFormat lastFormat_;                // of the text that was there, once the box is empty
    SurfaceChange change_;
    std::vector<int> placesToShow_;
    std::uint64_t contentRevision_ = 0;
};

}  // namespace tessaryn
