// The bytes of the program's files: little-endian integers and counted strings.
//
// A string is a 16-bit length and its bytes; from 65,535 bytes on the length is FF FF, followed by
// the true length in 32 bits. Booleans are 16-bit, True = -1.
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace tessaryn {

// The ten characters that a proof file and three of the settings files begin with.
inline constexpr std::string_view FileMagic = "Tessaryn 1";

inline constexpr std::size_t LongString = 0xFFFF;  // length bytes that announce a 32-bit length

class ByteWriter {
  public:
    void Bytes(std::string_view bytes) { out_ += bytes; }
    void Int16(int value) { LittleEndian(static_cast<std::uint32_t>(value), 2); }
    void Int32(int value) { LittleEndian(static_cast<std::uint32_t>(value), 4); }
    void Bool(bool value) { Int16(value ? -1 : 0); }
    void String(std::string_view text) {
        if (text.size() < LongString) {
            LittleEndian(static_cast<std::uint32_t>(text.size()), 2);
        } else {
            LittleEndian(LongString, 2);
            LittleEndian(static_cast<std::uint32_t>(text.size()), 4);
        }
        out_ += text;
    }
    void Reserve(std::size_t size) { out_.reserve(size); }
    std::string Take() { return std::move(out_); }

  private:
    void LittleEndian(std::uint32_t value, std::size_t count) {
        char bytes[4];
        for (char& byte : bytes) {
            byte = static_cast<char>(value & 0xFF);
            value >>= 8;
        }
        out_.append(bytes, count);
    }
    std::string out_;
};

// Where bytes come from: puts up to `count` of the next ones to a place. 0 at the end.
using ByteSource = std::function<std::size_t(char* to, std::size_t count)>;

// Reads past the end give zeroes and clear Good. No length that is read is believed beyond the end,
// so that nothing is ever made larger than what there is to read.
class ByteReader {
  public:
    explicit ByteReader(std::string_view bytes) : window_(bytes), left_(bytes.size()) {}
    // Reads from the source as it goes, `size` bytes at most.
    ByteReader(ByteSource source, std::uint64_t size) : source_(std::move(source)), left_(size) {}

    ByteReader(const ByteReader&) = delete;
    ByteReader& operator=(const ByteReader&) = delete;

    bool Good() const { return good_; }
    std::string Bytes(std::size_t count) {
        if (good_ && count <= window_.size()) {
            const std::string_view bytes = window_.substr(0, count);
            Pass(count);
            return std::string(bytes);
        }
        good_ = good_ && count <= left_;
        std::string bytes(good_ ? count : 0, '\0');
        Fill(bytes.data(), bytes.size());
        return bytes;
    }
    int Int16() { return static_cast<std::int16_t>(LittleEndian<2>()); }
    int Int32() { return static_cast<std::int32_t>(LittleEndian<4>()); }
    bool Bool() { return LittleEndian<2>() != 0; }
    std::string String() {
        std::size_t length = LittleEndian<2>();
        if (length == LongString) length = LittleEndian<4>();
        return Bytes(length);
    }

  private:
    template <std::size_t Count>
    std::uint32_t LittleEndian() {
        char bytes[Count] = {};
        if (good_ && Count <= window_.size()) {
            std::copy_n(window_.data(), Count, bytes);
            Pass(Count);
        } else {
            Fill(bytes, Count);
        }
        std::uint32_t value = 0;
        for (std::size_t i = Count; i > 0; --i) {
            value = value << 8 | static_cast<unsigned char>(bytes[i - 1]);
        }
        return value;
    }

    void Fill(char* to, std::size_t count) {
        good_ = good_ && count <= left_;
        while (good_ && count > 0) {
            if (window_.empty()) Refill();
            const std::size_t piece = window_.copy(to, count);
            Pass(piece);
            to += piece;
            count -= piece;
            good_ = piece > 0;
        }
    }

    void Pass(std::size_t count) {
        window_.remove_prefix(count);
        left_ -= count;
    }

    void Refill() {
        buffer_.resize(static_cast<std::size_t>(std::min<std::uint64_t>(left_, 65536)));
        window_ = std::string_view(buffer_).substr(
            0, source_ ? source_(buffer_.data(), buffer_.size()) : 0);
    }

    ByteSource source_;
    std::string buffer_;       // what the source gave last
    std::string_view window_;  // what of it is still to be read
    std::uint64_t left_;       // bytes to the end
    bool good_ = true;
};

}  // namespace tessaryn
