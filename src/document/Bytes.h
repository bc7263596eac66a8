// The bytes of the program's files: little-endian integers and counted strings.
//
// A string is a 16-bit length and its bytes; from 65,535 bytes on the length is FF FF, followed by
// the true length in 32 bits. Booleans are 16-bit, True = -1.
#pragma once

#include <cstdint>
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
    void LittleEndian(std::uint32_t value, int bytes) {
        for (int i = 0; i < bytes; ++i) out_ += static_cast<char>((value >> (8 * i)) & 0xFF);
    }
    std::string out_;
};

// Reads past the end give zeroes and clear Good.
class ByteReader {
  public:
    explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}
    bool Good() const { return good_; }
    std::string_view Bytes(std::size_t count) {
        if (count > bytes_.size() - at_) {
            good_ = false;
            return {};
        }
        at_ += count;
        return bytes_.substr(at_ - count, count);
    }
    int Int16() { return static_cast<std::int16_t>(LittleEndian(2)); }
    int Int32() { return static_cast<std::int32_t>(LittleEndian(4)); }
    bool Bool() { return LittleEndian(2) != 0; }
    std::string String() {
        std::size_t length = LittleEndian(2);
        if (length == LongString) length = LittleEndian(4);
        return std::string(Bytes(length));
    }

  private:
    std::uint32_t LittleEndian(std::size_t count) {
        std::uint32_t value = 0;
        int shift = 0;
        for (const char c : Bytes(count)) {
            value |= static_cast<std::uint32_t>(static_cast<unsigned char>(c)) << shift;
            shift += 8;
        }
        return value;
    }
    std::string_view bytes_;
    std::size_t at_ = 0;
    bool good_ = true;
};

}  // namespace tessaryn
