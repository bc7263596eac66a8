// Telling whether bytes are still the same without keeping them.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace tessaryn {

// Equal for equal bytes, and for hardly any others.
struct Fingerprint {
    std::uint64_t length = 0;
    std::uint64_t hash = 0;

    bool operator==(const Fingerprint&) const = default;
};

// Takes the fingerprint of bytes that come in pieces of any length.
class FingerprintTaker {
  public:
    void Add(std::string_view bytes) {
        std::size_t at = 0;
        while (at < bytes.size() && length_ % sizeof word_ != 0) AddByte(bytes[at++]);
        for (; at + sizeof word_ <= bytes.size(); at += sizeof word_) {
            std::uint64_t word = 0;
            std::memcpy(&word, bytes.data() + at, sizeof word);
            hash_ = Mixed(word);
            length_ += sizeof word;
        }
        while (at < bytes.size()) AddByte(bytes[at++]);
    }
    std::uint64_t Length() const { return length_; }
    Fingerprint Value() const { return {length_, Mixed(word_)}; }

  private:
    void AddByte(char byte) {
        word_ = word_ >> 8 | std::uint64_t{static_cast<unsigned char>(byte)} << 56;
        if (++length_ % sizeof word_ == 0) {
            hash_ = Mixed(word_);
            word_ = 0;
        }
    }
    // The step of the FNV-1a hash over a whole word, with its upper half brought down.
    std::uint64_t Mixed(std::uint64_t word) const {
        const std::uint64_t product = (hash_ ^ word) * 0x100000001B3;
        return product ^ product >> 32;
    }

    std::uint64_t length_ = 0;
    std::uint64_t hash_ = 0xCBF29CE484222325;
    std::uint64_t word_ = 0;  // the bytes behind the last whole word
};

}  // namespace tessaryn
