// What is a character of UTF-8 and what is none, and what is made of text that is none.
#include "text/Utf8.h"

#include <gtest/gtest.h>

#include "text/Encoding.h"
#include "text/TextSteps.h"

namespace tessaryn {
namespace {

TEST(Utf8, EveryCharacterComesBack) {
    for (char32_t code = 0; code < 0x110010; ++code) {
        std::string text;
        AppendUtf8(text, code);
        const bool none = (code >= 0xD800 && code < 0xE000) || code > 0x10FFFF;
        const Utf8Char read = DecodeAt(text, 0);
        ASSERT_EQ(read.code, none ? ReplacementCharacter : code);
        ASSERT_EQ(read.length, static_cast<int>(text.size()));
        ASSERT_EQ(DecodeAt(text.substr(0, text.size() - 1), 0).length, 0);
    }
}

TEST(Utf8, BytesThatAreNoneCountOneByOneAndAreReadAsWindows1252) {
    const std::pair<const char*, const char*> rows[] = {
        {"\xC0\x80", "À€"},                 // too long for what they say
        {"\xE0\x80\x80", "à€€"},            //
        {"\xE0\x9F\xBF", "àŸ¿"},            //
        {"\xF0\x8F\xBF\xBF", "ð\u008F¿¿"},  //
        {"\xED\xA0\x80", "í\u00A0€"},       // a surrogate
        {"\xF4\x90\x80\x80", "ô\u0090€€"},  // above U+10FFFF
        {"\xF5\x80\x80\x80", "õ€€€"},       //
        {"\xE2\x82", "â‚"},                 // cut short
        {"\xF0\x9F\x98", "ðŸ˜"},            //
        {"\x80\xBF\xFF", "€¿ÿ"},            // no first byte
    };
    for (const auto& [bytes, characters] : rows) {
        const std::string bad = bytes;
        EXPECT_FALSE(IsUtf8(bad));
        EXPECT_EQ(ToUtf8(bad), characters);
        EXPECT_EQ(CharacterCount(bad), std::ssize(bad)) << characters;
        EXPECT_EQ(CharStart(bad, 1), 1) << characters;
        EXPECT_EQ(CharacterCount("é" + bad + "😀"), std::ssize(bad) + 2) << characters;
    }
    EXPECT_EQ(ToUtf8("aä\xE4\x80\x99"), "aä䀙");
}

}  // namespace
}  // namespace tessaryn
