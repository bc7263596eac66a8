// Texts that repeat in their thousands, such as the name lists of a proof.
#pragma once

#include <concepts>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tessaryn {

// A text of which the program holds one copy, however many bear it: as cheap to copy, compare and
// hash as a pointer. The copy stays until the program ends. New ones are made by one thread only.
class KeptText {
  public:
    KeptText() = default;
    KeptText(std::string_view text) : text_(Kept(text)) {}               // NOLINT: is that text
    KeptText(const std::string& text) : text_(Kept(text)) {}             // NOLINT: the same
    KeptText(const char* text) : text_(Kept(std::string_view(text))) {}  // NOLINT: the same

    operator const std::string&() const { return *text_; }  // NOLINT: reads like any text
    operator std::string_view() const { return *text_; }    // NOLINT: the same
    const std::string& Text() const { return *text_; }
    bool empty() const { return text_->empty(); }
    bool operator==(const KeptText&) const = default;
    template <std::convertible_to<std::string_view> Other>
    requires(!std::same_as<Other, KeptText>) bool operator==(const Other& text) const {
        return std::string_view(*text_) == std::string_view(text);
    }
    // Differs for different texts, and from one run of the program to the next.
    std::size_t Key() const { return reinterpret_cast<std::uintptr_t>(text_); }

  private:
    struct Hash : std::hash<std::string_view> {
        using is_transparent = void;
    };
    static const std::string* Kept(std::string_view text) {
        static std::unordered_set<std::string, Hash, std::equal_to<>> pool;
        if (text.empty()) return &Empty;
        const auto kept = pool.find(text);
        return kept != pool.end() ? &*kept : &*pool.emplace(text).first;
    }

    inline static const std::string Empty;
    const std::string* text_ = &Empty;
};

}  // namespace tessaryn
