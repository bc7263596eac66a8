#include "text/Rtf.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "RtfLaws.h"
#include "platform/Files.h"
#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {
namespace {

const CharFormat plainFormat;
const CharFormat red{"Courier New", 12, Rgb(200, 0, 0), true};
const CharFormat sign{"Symbol", 12, 0, false};
const CharFormat triangle{"Webdings", 10, 0, false};
const CharFormat oddFont{"A;b{c}\\\xC3\xA4", 7, Rgb(0, 0, 150), false};

// "x € A : 4 Rule" with all that needs an escape.
RichText Sample() {
    RichText content;
    content.alignment = Alignment::Center;
    auto put = [&](const std::string& text, const CharFormat& format) {
        content.runs.push_back(
            {static_cast<int>(content.text.size()), static_cast<int>(text.size()), format});
        content.text += text;
    };
    put("\t1\t5-3 ", plainFormat);
    put("a\xCE\xB5\xE2\x88\x80\xF0\x9D\x94\xB8?", red);
    put("e", sign);
    put(" \\{x}\x01~\r\n\r\n", oddFont);
    put("4", triangle);
    put(" x\r\n", plainFormat);
    return content;
}

TEST(Rtf, RoundTripIsExact) {
    const RichText sample = Sample();
    EXPECT_EQ(ReadRtf(WriteRtf(sample)), sample);
    RichText empty;
    empty.alignment = Alignment::Right;
    EXPECT_EQ(ReadRtf(WriteRtf(empty)), empty);
    RichText everyByte;
    for (char c = 0; c < 127; ++c) {
        if (c != '\r' && c != '\n') everyByte.text += c;
    }
    everyByte.runs = {{0, static_cast<int>(everyByte.text.size()), red}};
    EXPECT_EQ(ReadRtf(WriteRtf(everyByte)), everyByte);
}

TEST(Rtf, WritesWhatWordProcessorsRead) {
    const std::string rtf = WriteRtf(Sample());
    for (const char* part :
         {"{\\rtf1\\ansi", "\\fcharset2 Symbol;}", "\\fcharset2 Webdings;}",
          "\\fcharset0 Courier New;}",
          "{\\colortbl;\\red200\\green0\\blue0;\\red0\\green0\\blue150;}", "\\pard\\qc", "\\uc1",
          "a\\u949?\\u8704?\\u-10187?\\u-8904??", "\\\\\\{x\\}\\'01~\\par\n\\par\n"}) {
        EXPECT_NE(rtf.find(part), std::string::npos) << part << " not in " << rtf;
    }
    EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](char c) { return c > 0; }));
}

TEST(Rtf, ReadsTextOfOtherPrograms) {
    const std::pair<const char*, const char*> rows[] = {
        // line ends; the last \par only ends its paragraph
        {" a\\par b\\line c\\par}", "a\r\nb\r\nc"},
        {" a\r\nb\\\r\nc\\\nd}", "ab\r\nc\r\nd"},
        {" a\\tab b\\cell c\\\td}", "a\tb\tc\td"},
        // characters
        {"\\'80\\'e9\\'7B\\{\\}\\\\}", "€é{{}\\"},
        {"\\emdash\\endash \\lquote\\rquote\\ldblquote\\rdblquote\\bullet\\~x}",
         "—–‘’“”•\xC2\xA0x"},
        {" caf\xE9 é \xE0\x80\x80 \xED\xA0\x80}", "café é à€€ í\u00A0€"},
        // \u and what stands in for it
        {"\\u8704?x\\u8704\\'3fx\\uc0\\u8704x\\uc2\\u8704??x}", "∀x∀x∀x∀x"},
        {"{\\uc0\\u8704}\\u8704\\tab x\\u8704}x", "∀∀x∀"},
        {"\\u-10187?\\u-8904?\\u-10187?x\\u-8904?}", "𝔸\uFFFDx\uFFFD"},
        {"{\\fonttbl{\\f3\\fcharset2 Symbol;}}\\u-3995?\\f3\\u-3995?}", "\uF065e"},
        // destinations
        {"{\\stylesheet{\\s0 Normal;}}{\\info{\\title T}}{\\*\\unknown{x} y}a}", "a"},
        {"{\\header h\\par}{\\pict\\wmetafile8 0102}{\\pict\\bin3 }}}x}a}", "a"},
        {"{\\field{\\*\\fldinst HYPERLINK}{\\fldrslt link}}{\\unknown a}{\\v hidden}b}", "linkab"},
        {" a} behind the end", "a"},
        // numbers
        {"\\bin99999999999 a}", ""},
        {"\\bin-5 a\\u99999999999999999999?\\fs-3\\cf99\\f-7\\uc-1 b\\b-}", "a쨀b-"},
    };
    for (const auto& [rtf, text] : rows) {  // behind the head
        EXPECT_EQ(ReadRtf(std::string("{\\rtf1\\ansi") + rtf).text, text) << rtf;
    }
}

TEST(Rtf, ReadsFormats) {
    const RichText content = ReadRtf(
        "{\\rtf1\\deff1{\\fonttbl\\f0 Arial;\\f1\\fnil Courier;{\\f2{\\*\\falt x}Times;}}"
        "{\\colortbl;\\red9\\green8\\blue7;;}\\qr\\fs21 a{\\b\\f2\\cf1 b{\\b0 c}d}\\plain e\\cf2 "
        "f\\f9 g}");
    const std::vector<FormatRun> expected{
        {0, 1, {"Courier", 10, 0, false}},          {1, 1, {"Times", 10, Rgb(9, 8, 7), true}},
        {2, 1, {"Times", 10, Rgb(9, 8, 7), false}}, {3, 1, {"Times", 10, Rgb(9, 8, 7), true}},
        {4, 2, {"Courier", 12, 0, false}},          {6, 1, plainFormat}};
    EXPECT_EQ(content.runs, expected);
    EXPECT_EQ(content.text, "abcdefg");
    EXPECT_EQ(content.alignment, Alignment::Right);
}

TEST(Rtf, TakesOtherTextAsPlain) {
    const RichText content = ReadRtf("a {\\b}\nb\r\rc\r\n");
    EXPECT_EQ(content.text, "a {\\b}\r\nb\r\n\r\nc\r\n");
    EXPECT_EQ(content.runs, (std::vector<FormatRun>{{0, 16, plainFormat}}));
    EXPECT_EQ(ReadRtf("caf\xE9").text, "café");
    EXPECT_EQ(ReadRtf(""), RichText());
}

TEST(Rtf, SurvivesTruncationAndMutation) {
    std::mt19937 random(1);
    const std::string parts = "{}\\;*'?0u9-\n\xFF\xE0\x80\x80\xE2 bin";
    std::vector<std::string> seeds{WriteRtf(Sample())};
    for (const auto& seed :
         std::filesystem::directory_iterator(TESSARYN_SOURCE_DIR "/fuzz/corpus/rtf")) {
        seeds.push_back(*ReadWholeFile(seed.path().string()));
    }
    for (const std::string& whole : seeds) {
        for (std::size_t length = 0; length <= whole.size(); ++length) {
            ASSERT_EQ(BrokenRtfLaw(whole.substr(0, length)), "") << length;
        }
        for (int round = 0; round < 2000; ++round) {
            std::string rtf = whole;
            for (int change = 0; change < 5; ++change) {
                char& place = rtf[5 + random() % (rtf.size() - 5)];
                place = change < 3 ? parts[random() % parts.size()] : static_cast<char>(random());
            }
            ASSERT_EQ(BrokenRtfLaw(rtf), "") << rtf;
        }
    }
}

TEST(Rtf, SurvivesDepthAndMass) {
    const std::string opening(100000, '{');
    const std::string closing(100000, '}');
    EXPECT_EQ(ReadRtf("{\\rtf1 a" + opening + "b" + closing + "c}d").text, "abc");
    EXPECT_EQ(ReadRtf("{\\rtf1 a" + opening).text, "a");
    EXPECT_EQ(ReadRtf("{\\rtf1 a" + closing + "b").text, "a");
    std::string flicker = "{\\rtf1 ";
    for (int i = 0; i < 520000; ++i) flicker += i % 2 == 0 ? "\\b a" : "\\b0 a";
    const RichText content = ReadRtf(flicker);
    EXPECT_EQ(content.text.size(), 520000u);
    EXPECT_EQ(content.runs.size(), 500000u);
    const std::string fonts =
        "{\\fonttbl{\\f0 " + std::string(99, 'a') + "ä" + std::string(999, 'b');
    EXPECT_EQ(ReadRtf("{\\rtf1" + fonts + ";}}x}").runs.at(0).format.Font, std::string(99, 'a'));
}

}  // namespace
}  // namespace tessaryn
