// The statements of a document, by line number, in pages that copies of the table share.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "document/RuleNames.h"
#include "document/Statement.h"

namespace tessaryn {

// A value: a copy costs a pointer for each page and stays as it is whatever becomes of the
// original. What is written to comes out of its shared page first, so that a change costs its own
// pages and no others. Lines count from 1 and must exist.
class StatementTable {
  public:
    int Count() const { return count_; }
    template <std::integral Line>
    const Statement& operator[](Line line) const {
        const std::size_t index = static_cast<std::size_t>(line) - 1;
        return pages_[index / PageSize]->statements[index % PageSize];
    }
    const Statement& back() const { return (*this)[count_]; }

    // The statement for writing, valid until the table is copied or grows. Its rule is written
    // ahead of all else.
    template <std::integral Line>
    Statement& Edit(Line line) {
        const std::size_t index = static_cast<std::size_t>(line) - 1;
        return OwnPage(index / PageSize).statements[index % PageSize];
    }

    void Append(const Statement& statement) {
        if (count_ % static_cast<int>(PageSize) == 0) AddPage();
        OwnPage(pages_.size() - 1).statements.push_back(statement);
        ++count_;
    }
    // Puts `count` fresh statements in at `line`; what stood there and behind it moves on.
    void Insert(int line, int count) {
        const StatementTable whole = CutOffFrom(line);
        for (int i = 0; i < count; ++i) Append({});
        for (int old = line; old <= whole.count_; ++old) Append(whole[old]);
    }
    // Removes the statements that the predicate tells of.
    template <class Predicate>
    void EraseIf(Predicate doomed) {
        int first = 1;
        while (first <= count_ && !doomed((*this)[first])) ++first;
        if (first > count_) return;
        const StatementTable whole = CutOffFrom(first);
        for (int old = first; old <= whole.count_; ++old) {
            if (!doomed(whole[old])) Append(whole[old]);
        }
    }
    // Calls edit with each statement, for writing.
    template <class Editor>
    void EditEach(Editor edit) {
        for (int line = 1; line <= count_; ++line) edit(Edit(line));
    }
    void Clear() {
        pages_.clear();
        count_ = 0;
    }

    // The nearest Premise or Conclusion from `line` on; behind the last line if there is none.
    int BlockEdgeFrom(int line) const {
        const std::size_t index = static_cast<std::size_t>(line) - 1;
        std::size_t skipped = index % PageSize;
        for (std::size_t page = index / PageSize; page < pages_.size(); ++page, skipped = 0) {
            const std::uint64_t edges = BlocksOf(page).edges >> skipped;
            if (edges == 0) continue;
            return LineAt(page, skipped + static_cast<std::size_t>(std::countr_zero(edges)));
        }
        return count_ + 1;
    }
    // The nearest one up to `line`; 0 if there is none.
    int BlockEdgeUpTo(int line) const {
        if (line < 1) return 0;
        const std::size_t index = static_cast<std::size_t>(line) - 1;
        std::size_t last = index % PageSize;
        for (std::size_t page = index / PageSize + 1; page-- > 0; last = PageSize - 1) {
            const std::uint64_t edges = BlocksOf(page).edges << (PageSize - 1 - last);
            if (edges == 0) continue;
            return LineAt(page, last - static_cast<std::size_t>(std::countl_zero(edges)));
        }
        return 0;
    }

    // The Conclusion that closes the block of a Premise; 0 if none does, or `line` is no Premise.
    int BlockEnd(int line) const {
        const std::size_t index = static_cast<std::size_t>(line) - 1;
        return BlocksOf(index / PageSize).ends[index % PageSize];
    }

    // Does the walk past closed blocks, from line 1 on, come by this line?
    bool WalkComesBy(int line) const {
        const std::size_t page = (static_cast<std::size_t>(line) - 1) / PageSize;
        int at = 1;
        while (at <= line) {
            const std::size_t index = static_cast<std::size_t>(at) - 1;
            const Blocks& blocks = BlocksOf(index / PageSize);
            if (index / PageSize < page) {
                at = blocks.exits[index % PageSize];
            } else if (at == line) {
                return true;
            } else {
                at = std::max(at + 1, blocks.ends[index % PageSize]);
            }
        }
        return false;
    }

    // How many lines at the head, or at the end if both have as many lines, stand in pages that the
    // two tables share, and are therefore the same in both.
    int SharedHead(const StatementTable& other) const {
        const auto differ =
            std::mismatch(pages_.begin(), pages_.end(), other.pages_.begin(), other.pages_.end());
        const auto pages = static_cast<std::size_t>(differ.first - pages_.begin());
        return std::min({static_cast<int>(pages * PageSize), count_, other.count_});
    }
    int SharedTail(const StatementTable& other) const {
        if (count_ != other.count_) return 0;
        std::size_t page = pages_.size();
        while (page > 0 && pages_[page - 1] == other.pages_[page - 1]) --page;
        return std::max(count_ - static_cast<int>(page * PageSize), 0);
    }

    // Reading in order of the lines.
    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Statement;
        using difference_type = std::ptrdiff_t;
        using pointer = const Statement*;
        using reference = const Statement&;

        Iterator() = default;
        Iterator(const StatementTable* table, int line) : table_(table), line_(line) {}
        reference operator*() const { return (*table_)[line_]; }
        pointer operator->() const { return &(*table_)[line_]; }
        Iterator& operator++() {
            ++line_;
            return *this;
        }
        Iterator operator++(int) { return {table_, line_++}; }
        bool operator==(const Iterator&) const = default;

      private:
        const StatementTable* table_ = nullptr;
        int line_ = 1;
    };
    Iterator begin() const { return {this, 1}; }
    Iterator end() const { return {this, count_ + 1}; }

  private:
    static constexpr std::size_t PageSize = 64;
    // What a walk over blocks asks of a page, apart from the statements: a walk through a long
    // proof would wait for each of them to come out of main memory.
    struct Blocks {
        std::uint64_t edges = 0;            // a bit for each Premise and Conclusion
        std::array<int, PageSize> ends{};   // of the closed Premises
        std::array<int, PageSize> exits{};  // by line: where the walk past closed blocks that
                                            // stands there first comes to another page
    };
    struct Page {
        std::vector<Statement> statements;
        std::optional<Blocks> blocks;  // kept once it has been asked for
    };

    // Of the page with that number, 0-based.
    const Blocks& BlocksOf(std::size_t number) const {
        Page& page = *pages_[number];
        if (page.blocks) return *page.blocks;
        Blocks& blocks = page.blocks.emplace(Blocks{});
        const int behind = LineAt(number + 1, 0);
        for (std::size_t i = page.statements.size(); i-- > 0;) {
            const Statement& stmt = page.statements[i];
            if (IsClosedPremise(stmt)) blocks.ends[i] = stmt.Arg1;
            if (stmt.Rule == Rule::Premise || IsConclusion(stmt)) {
                blocks.edges |= std::uint64_t{1} << i;
            }
            const int next = std::max(LineAt(number, i) + 1, blocks.ends[i]);
            blocks.exits[i] =
                next < behind ? blocks.exits[static_cast<std::size_t>(next - 1) % PageSize] : next;
        }
        return blocks;
    }
    static int LineAt(std::size_t page, std::size_t place) {
        return static_cast<int>(page * PageSize + place) + 1;
    }

    void AddPage() {
        pages_.push_back(std::make_shared<Page>());
        pages_.back()->statements.reserve(PageSize);
    }
    Page& OwnPage(std::size_t index) {
        std::shared_ptr<Page>& page = pages_[index];
        if (page.use_count() > 1) {
            auto own = std::make_shared<Page>();
            own->statements.reserve(PageSize);
            own->statements = page->statements;
            page = std::move(own);
        }
        page->blocks.reset();
        return *page;
    }
    // Drops the lines from `line` on, and gives the table as it was.
    StatementTable CutOffFrom(int line) {
        StatementTable whole = *this;
        count_ = line - 1;
        const auto kept = static_cast<std::size_t>(count_);
        pages_.resize((kept + PageSize - 1) / PageSize);
        if (kept % PageSize > 0) OwnPage(pages_.size() - 1).statements.resize(kept % PageSize);
        return whole;
    }

    std::vector<std::shared_ptr<Page>> pages_;
    int count_ = 0;
};

}  // namespace tessaryn
