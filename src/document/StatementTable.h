// The statements of a document, by line number, in pages that copies of the table share.
#pragma once

#include <concepts>
#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

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

    // The statement for writing, valid until the table is copied or grows.
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
    };

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
        return *page;
    }
    // Drops the lines from `line` on, and gives the table as it was.
    StatementTable CutOffFrom(int line) {
        StatementTable whole = *this;
        count_ = line - 1;
        const std::size_t kept = static_cast<std::size_t>(count_);
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
