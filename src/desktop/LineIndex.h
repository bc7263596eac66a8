// Where the lines of a long text begin and how wide the widest is, kept up to date from what
// changed alone. Lines end with LF; the index holds no text.
#pragma once

#include <string_view>
#include <vector>

namespace tessaryn {

class LineIndex {
  public:
    static constexpr int TabColumns = 6;  // from one TAB stop to the next: a five-digit line number

    void Rebuild(std::string_view text);
    // text is the new one, in which `inserted` bytes from start on replace `removed` old ones.
    void Update(std::string_view text, int start, int removed, int inserted);

    int Count() const { return static_cast<int>(starts_.size()); }  // at least 1
    int LineAt(int position) const;
    int Start(int line) const { return starts_[static_cast<std::size_t>(line)]; }
    // Behind the line's last character, its CR LF left out.
    int End(std::string_view text, int line) const;
    int WidestLine() const { return widest_; }  // columns of the widest line, TABs expanded

    // Places as a QString counts them: in UTF-16 units, a CR LF as one. They are counted when
    // someone asks, up to the line that is asked about.
    int Units(std::string_view text) const;                 // of the whole text
    int UnitAt(std::string_view text, int position) const;  // how many lie ahead of a byte
    int ByteAt(std::string_view text, int unit) const;      // limited to the text
    int UnitsCounted() const { return unitStarts_.back(); }

  private:
    void FindWidest(std::string_view text, int first, int last);  // among lines first to last
    int UnitStart(std::string_view text, int line) const;

    std::vector<int> starts_{0};
    mutable std::vector<int> unitStarts_{0};  // of the first lines, and perhaps the end
    int widest_ = 0;
    int widestLine_ = 0;  // one of that width
};

}  // namespace tessaryn
