#include <array>
#include <unordered_map>

#include "text/Rtf.h"
#include "text/TextSteps.h"
#include "text/Utf8.h"

namespace tessaryn {

namespace {

// The fonts or colours used, each once, numbered from 0.
template <class T>
struct Numbered {
    explicit Numbered(const T& first) { NumberOf(first); }

    std::size_t NumberOf(const T& value) {
        const auto [entry, added] = numbers.try_emplace(value, list.size());
        if (added) list.push_back(value);
        return entry->second;
    }

    std::vector<T> list;

  private:
    std::unordered_map<T, std::size_t> numbers;
};

bool IsSymbolFont(const std::string& font) {
    return font == "Symbol" || font == "Webdings";
}

void AppendHex(std::string& rtf, unsigned char byte) {
    constexpr std::array digits{'0', '1', '2', '3', '4', '5', '6', '7',
                                '8', '9', 'a', 'b', 'c', 'd', 'e', 'f'};
    rtf += "\\'";
    rtf += digits[byte >> 4];
    rtf += digits[byte & 15];
}

void AppendUnicode(std::string& rtf, char32_t character) {
    auto put = [&](char32_t unit) {  // a 16-bit number with sign
        const int number = static_cast<int>(unit);
        rtf += "\\u" + std::to_string(number < 0x8000 ? number : number - 0x10000) + "?";
    };
    if (character < 0x10000) return put(character);
    put(0xD800 + ((character - 0x10000) >> 10));
    put(0xDC00 + ((character - 0x10000) & 0x3FF));
}

void AppendByte(std::string& rtf, char c) {
    if (c == '\t') {
        rtf += "\\tab ";
    } else if (c == '\\' || c == '{' || c == '}') {
        rtf += '\\';
        rtf += c;
    } else if (c < ' ' || c > '~') {
        AppendHex(rtf, static_cast<unsigned char>(c));
    } else {
        rtf += c;
    }
}

void AppendText(std::string& rtf, std::string_view text) {
    int length = 0;
    for (int i = 0; i < static_cast<int>(text.size()); i += length) {
        length = SequenceLength(text, i);
        const char c = text[static_cast<std::size_t>(i)];
        if (length > 1) {
            AppendUnicode(rtf, DecodeAt(text, static_cast<std::size_t>(i)).code);
        } else if (c == '\r' || c == '\n') {
            length = StepEnd(text, i) - i;
            rtf += "\\par\n";
        } else {
            AppendByte(rtf, c);
        }
    }
}

// A plain ; would end the name.
void AppendFontName(std::string& rtf, std::string_view font) {
    for (std::size_t end = font.find(';'); end != font.npos; end = font.find(';')) {
        AppendText(rtf, font.substr(0, end));
        AppendHex(rtf, ';');
        font.remove_prefix(end + 1);
    }
    AppendText(rtf, font);
}

struct Writer {
    Numbered<std::string> fonts{CharFormat().Font};
    Numbered<Colour> colours{0};  // number 0 is the reader's own colour for text
    std::string body;

    // Only what differs from the format ahead.
    void PutFormat(const CharFormat& before, const CharFormat& format) {
        const std::size_t start = body.size();
        const std::size_t font = fonts.NumberOf(format.Font);
        const std::size_t colour = colours.NumberOf(format.Color);
        if (format.Font != before.Font) body += "\\f" + std::to_string(font);
        if (format.Size != before.Size) body += "\\fs" + std::to_string(2 * format.Size);
        if (format.Color != before.Color) body += "\\cf" + std::to_string(colour);
        if (format.Bold != before.Bold) body += format.Bold ? "\\b" : "\\b0";
        if (body.size() > start) body += ' ';
    }

    std::string FontTable() const {
        std::string rtf = "{\\fonttbl";
        for (std::size_t i = 0; i < fonts.list.size(); ++i) {
            rtf += "{\\f" + std::to_string(i);
            rtf += IsSymbolFont(fonts.list[i]) ? "\\fnil\\fcharset2 " : "\\fnil\\fcharset0 ";
            AppendFontName(rtf, fonts.list[i]);
            rtf += ";}";
        }
        return rtf + "}\n";
    }

    std::string ColourTable() const {
        std::string rtf = "{\\colortbl;";
        for (std::size_t i = 1; i < colours.list.size(); ++i) {
            const Colour colour = colours.list[i];
            rtf += "\\red" + std::to_string((colour >> 16) & 0xFF);
            rtf += "\\green" + std::to_string((colour >> 8) & 0xFF);
            rtf += "\\blue" + std::to_string(colour & 0xFF) + ";";
        }
        return rtf + "}\n";
    }
};

const char* AlignmentWord(Alignment alignment) {
    if (alignment == Alignment::Center) return "\\qc";
    return alignment == Alignment::Right ? "\\qr" : "\\ql";
}

}  // namespace

std::string WriteRtf(const RichText& content) {
    Writer writer;
    writer.body.reserve(content.text.size() + content.text.size() / 2);
    CharFormat before;
    for (const FormatRun& run : content.runs) {
        writer.PutFormat(before, run.format);
        AppendText(writer.body, std::string_view(content.text)
                                    .substr(static_cast<std::size_t>(run.start),
                                            static_cast<std::size_t>(run.length)));
        before = run.format;
    }
    // The starred group tells our own reader that the last \par is part of the text.
    return "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\*\\tessaryn1}" + writer.FontTable() +
           writer.ColourTable() + "\\uc1\\pard" + AlignmentWord(content.alignment) + "\\f0\\fs24 " +
           writer.body + "}";
}

}  // namespace tessaryn
