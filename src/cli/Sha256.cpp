#include "cli/Sha256.h"

#include <array>
#include <bit>
#include <cstdint>

namespace tessaryn {

namespace {

using Word = std::uint32_t;

constexpr std::array<Word, 8> Start = {0x6A09E667, 0xBB67AE85, 0x3C6EF372, 0xA54FF53A,
                                       0x510E527F, 0x9B05688C, 0x1F83D9AB, 0x5BE0CD19};
constexpr std::array<Word, 64> Rounds = {
    0x428A2F98, 0x71374491, 0xB5C0FBCF, 0xE9B5DBA5, 0x3956C25B, 0x59F111F1, 0x923F82A4, 0xAB1C5ED5,
    0xD807AA98, 0x12835B01, 0x243185BE, 0x550C7DC3, 0x72BE5D74, 0x80DEB1FE, 0x9BDC06A7, 0xC19BF174,
    0xE49B69C1, 0xEFBE4786, 0x0FC19DC6, 0x240CA1CC, 0x2DE92C6F, 0x4A7484AA, 0x5CB0A9DC, 0x76F988DA,
    0x983E5152, 0xA831C66D, 0xB00327C8, 0xBF597FC7, 0xC6E00BF3, 0xD5A79147, 0x06CA6351, 0x14292967,
    0x27B70A85, 0x2E1B2138, 0x4D2C6DFC, 0x53380D13, 0x650A7354, 0x766A0ABB, 0x81C2C92E, 0x92722C85,
    0xA2BFE8A1, 0xA81A664B, 0xC24B8B70, 0xC76C51A3, 0xD192E819, 0xD6990624, 0xF40E3585, 0x106AA070,
    0x19A4C116, 0x1E376C08, 0x2748774C, 0x34B0BCB5, 0x391C0CB3, 0x4ED8AA4A, 0x5B9CCA4F, 0x682E6FF3,
    0x748F82EE, 0x78A5636F, 0x84C87814, 0x8CC70208, 0x90BEFFFA, 0xA4506CEB, 0xBEF9A3F7, 0xC67178F2};

void AddBlock(std::array<Word, 8>& state, std::string_view block) {
    std::array<Word, 64> words{};
    for (std::size_t i = 0; i < block.size(); ++i) {
        words[i / 4] = words[i / 4] << 8 | static_cast<unsigned char>(block[i]);
    }
    for (std::size_t i = 16; i < 64; ++i) {
        const Word a = words[i - 15];
        const Word b = words[i - 2];
        words[i] = words[i - 16] + words[i - 7] + (std::rotr(a, 7) ^ std::rotr(a, 18) ^ a >> 3) +
                   (std::rotr(b, 17) ^ std::rotr(b, 19) ^ b >> 10);
    }
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < 64; ++i) {
        const Word one = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                         ((e & f) ^ (~e & g)) + Rounds[i] + words[i];
        const Word two =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g, g = f, f = e, e = d + one, d = c, c = b, b = a, a = one + two;
    }
    const std::array<Word, 8> added = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < 8; ++i) state[i] += added[i];
}

std::string InBase64(std::string_view bytes) {
    constexpr std::string_view digits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        Word group = 0;
        for (std::size_t i = at; i < at + 3; ++i) {
            group = group << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
        }
        for (std::size_t i = 0; i < 4; ++i) {
            text += at + i > bytes.size() ? '=' : digits[group >> (18 - 6 * i) & 63];
        }
    }
    return text;
}

}  // namespace

std::string Sha256InBase64(std::string_view bytes) {
    std::string padded(bytes);
    padded += '\x80';
    padded.append((119 - bytes.size() % 64) % 64, '\0');
    for (int shift = 56; shift >= 0; shift -= 8) {
        padded += static_cast<char>(static_cast<std::uint64_t>(bytes.size()) * 8 >> shift);
    }
    std::array<Word, 8> state = Start;
    for (std::size_t at = 0; at < padded.size(); at += 64) {
        AddBlock(state, std::string_view(padded).substr(at, 64));
    }
    std::string digest;
    for (const Word word : state) {
        for (int shift = 24; shift >= 0; shift -= 8) digest += static_cast<char>(word >> shift);
    }
    return InBase64(digest);
}

}  // namespace tessaryn
