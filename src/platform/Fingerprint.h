// Telling whether bytes are still the same without keeping them.
#pragma once

#include <cstdint>
#include <string_view>

namespace tessaryn {

// Equal for equal bytes, in whatever pieces they are added, and for hardly any others.
struct Fingerprint {
    std::uint64_t length = 0;
    std::uint64_t hash = 0xCBF29CE484222325;  // FNV-1a

    void Add(std::string_view bytes) {
        for (const char c : bytes) {
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
        }
        length += bytes.size();
    }
    bool operator==(const Fingerprint&) const = default;
};

}  // namespace tessaryn
