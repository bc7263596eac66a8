// The statements of a document, by line number, in pages that copies of the table share.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
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

    void Append(Statement statement) {
        if (count_ % static_cast<int>(PageSize) == 0) AddPage();
        OwnPage(pages_.size() - 1).statements.push_back(std::move(statement));
        ++count_;
    }
    // Puts `count` fresh statements in at `line`; what stood there and behind it moves on.
    void Insert(int line, int count) {
        StatementTable whole = CutOffFrom(line);
        for (int i = 0; i < count; ++i) Append({});
        for (int old = line; old <= whole.count_; ++old) Append(whole.TakeOut(old));
    }
    // Removes the statements that the predicate tells of.
    template <class Predicate>
    void EraseIf(Predicate doomed) {
        int first = 1;
        while (first <= count_ && !doomed((*this)[first])) ++first;
        if (first > count_) return;
        StatementTable whole = CutOffFrom(first);
        for (int old = first; old <= whole.count_; ++old) {
            if (!doomed(std::as_const(whole)[old])) Append(whole.TakeOut(old));
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
        while (line <= count_) {
            const std::size_t page = (static_cast<std::size_t>(line) - 1) / PageSize;
            const int end = std::min(count_, static_cast<int>((page + 1) * PageSize));
            if (!HasBlockEdge(*pages_[page])) {
                line = end + 1;
                continue;
            }
            for (; line <= end; ++line) {
                if (IsBlockEdge((*this)[line])) return line;
            }
        }
        return count_ + 1;
    }
    // The nearest one up to `line`; 0 if there is none.
    int BlockEdgeUpTo(int line) const {
        while (line > 0) {
            const std::size_t page = (static_cast<std::size_t>(line) - 1) / PageSize;
            const int start = static_cast<int>(page * PageSize) + 1;
            if (!HasBlockEdge(*pages_[page])) {
                line = start - 1;
                continue;
            }
            for (; line >= start; --line) {
                if (IsBlockEdge((*this)[line])) return line;
            }
        }
        return 0;
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
    struct Page {
        std::vector<Statement> statements;
        std::optional<bool> hasBlockEdge;  // kept once it has been asked for
    };

    static bool IsBlockEdge(const Statement& stmt) {
        return stmt.Rule == Rule::Premise || stmt.Rule == Rule::Conclusion;
    }
    static bool HasBlockEdge(Page& page) {
        if (!page.hasBlockEdge) {
            page.hasBlockEdge =
                std::any_of(page.statements.begin(), page.statements.end(), IsBlockEdge);
        }
        return *page.hasBlockEdge;
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
        page->hasBlockEdge.reset();
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
    // A statement for another table: moved where no copy shares it.
    Statement TakeOut(int line) {
        const std::size_t index = static_cast<std::size_t>(line) - 1;
        std::shared_ptr<Page>& page = pages_[index / PageSize];
        Statement& statement = page->statements[index % PageSize];
        return page.use_count() > 1 ? statement : std::move(statement);
    }

    std::vector<std::shared_ptr<Page>> pages_;
    int count_ = 0;
};

}  // namespace tessaryn
