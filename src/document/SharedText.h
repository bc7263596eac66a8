// The text of a document, whose bytes copies share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace tessaryn {

// A value: a copy costs nothing in proportion to the text and stays as it is whatever becomes of
// the original. Text added at the end goes behind the shared bytes, where older copies do not look;
// every other change makes new bytes. Positions are 0-based bytes. What is found is a place of
// View(), or std::string_view::npos.
class SharedText {
  public:
    SharedText() = default;
    explicit SharedText(std::string text)
        : bytes_(std::make_shared<std::string>(std::move(text))), length_(bytes_->size()) {}
    SharedText& operator=(std::string text) { return *this = SharedText(std::move(text)); }

    // Valid until the text is changed.
    std::string_view View() const {
        return bytes_ ? std::string_view(*bytes_).substr(0, length_) : std::string_view();
    }
    operator std::string_view() const { return View(); }  // NOLINT: reads like any text

    // Do the two texts hold one and the same bytes, as far as both go? They may do so without.
    bool SharesBytes(const SharedText& other) const { return bytes_ == other.bytes_; }

    std::size_t size() const { return length_; }
    bool empty() const { return length_ == 0; }
    char operator[](std::size_t position) const { return (*bytes_)[position]; }
    std::size_t find(std::string_view text, std::size_t from = 0) const {
        return View().find(text, from);
    }
    std::size_t rfind(std::string_view text, std::size_t from) const {
        return View().rfind(text, from);
    }
    std::string substr(std::size_t from, std::size_t count = std::string::npos) const {
        return std::string(View().substr(from, count));
    }
    bool starts_with(std::string_view text) const { return View().starts_with(text); }
    bool operator==(std::string_view text) const { return View() == text; }
    bool operator==(const SharedText& other) const { return View() == other.View(); }

    SharedText& operator+=(std::string_view text) {
        if (!bytes_ || bytes_->size() != length_) {  // another copy has gone on from here
            auto own = std::make_shared<std::string>();
            own->reserve(length_ + std::max(length_ / 8, text.size()));
            *own = View();
            bytes_ = std::move(own);
        }
        bytes_->append(text);
        length_ = bytes_->size();
        return *this;
    }
    void Replace(std::size_t from, std::size_t count, std::string_view with) {
        std::string changed;
        changed.reserve(length_ - count + with.size());
        changed.append(View(), 0, from).append(with).append(View(), from + count);
        *this = SharedText(std::move(changed));
    }
    void clear() { *this = SharedText(); }

  private:
    std::shared_ptr<std::string> bytes_;  // at least length_ bytes
    std::size_t length_ = 0;
};

}  // namespace tessaryn
