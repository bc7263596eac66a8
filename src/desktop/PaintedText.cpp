#include "desktop/PaintedText.h"

#include <QRawFont>
#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

#include "text/Utf8.h"

namespace tessaryn {

namespace {

constexpr QChar ElementGlyph(0x03B5);
constexpr QChar UpGlyph(0x25B2);
constexpr int SurfaceFont = QTextFormat::UserProperty;
constexpr std::size_t FormatsKept = 30;  // more than the program has of its own

const QString& StatementFont() {
    static const QString name = QStringLiteral("Courier New");
    return name;
}

// The pointer to the right that has the width of one character, where the font has one.
QChar RightGlyph() {
    static const QChar glyph = [] {
        const auto raw = QRawFont::fromFont(QFont(StatementFont()));
        return raw.supportsCharacter(QChar(0x25B6)) || !raw.supportsCharacter(QChar(0x25BA))
                   ? QChar(0x25B6)
                   : QChar(0x25BA);
    }();
    return glyph;
}

// What a byte of the surface looks like in one of the fonts of signs; null if as it stands.
QChar Glyph(char stored, const std::string& font) {
    if (font == "Symbol" && stored == 'e') return ElementGlyph;
    if (font == "Webdings" && stored == '4') return RightGlyph();
    if (font == "Webdings" && stored == '5') return UpGlyph;
    return {};
}

void AppendUnits(PaintedText& painted, char32_t character, int byte) {
    const auto units = QChar::fromUcs4(character);
    painted.text += QStringView(units);
    painted.bytes.insert(painted.bytes.end(), static_cast<std::size_t>(QStringView(units).size()),
                         byte);
}

// Appends the character at a position; gives the position behind it.
int AppendCharacter(PaintedText& painted, std::string_view text, int at, const std::string& font) {
    const auto index = static_cast<std::size_t>(at);
    const char c = text[index];
    if (c == '\r' && index + 1 < text.size() && text[index + 1] == '\n') {
        AppendUnits(painted, QChar::ParagraphSeparator, at);
        return at + 2;
    }
    if (c == '\n' || c == '\r') {
        AppendUnits(painted, QChar::ParagraphSeparator, at);
        return at + 1;
    }
    if (const QChar glyph = Glyph(c, font); !glyph.isNull()) {
        AppendUnits(painted, glyph.unicode(), at);
        return at + 1;
    }
    const Utf8Char character = DecodeAt(text, index);
    AppendUnits(painted, character.length > 0 ? character.code : ReplacementCharacter, at);
    return at + std::max(1, character.length);
}

}  // namespace

int PaintedText::UnitAt(int byte) const {
    const auto found = std::lower_bound(bytes.begin(), bytes.end(), byte);
    return static_cast<int>(std::min(found - bytes.begin(), std::ptrdiff_t(text.size())));
}

PaintedText PaintText(RichTextBox& box, int first, int last) {
    PaintedText painted;
    const std::string& text = box.GetText();
    int at = first;
    for (const FormatRun& run : box.RunsIn(first, last)) {
        const int end = std::min(run.start + run.length, last);
        const auto start = static_cast<int>(painted.text.size());
        while (at < end) at = AppendCharacter(painted, text, at, run.format.Font);
        const int length = static_cast<int>(painted.text.size()) - start;
        if (length > 0) painted.spans.push_back({start, length, run.format});
    }
    painted.bytes.push_back(last);
    return painted;
}

QString ReadText(RichTextBox& box, int first, int last) {
    if (first >= last) return {};
    return PaintText(box, first, last).text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

std::string StoredText(const QString& shown, const std::string& font) {
    if (font != "Symbol" && font != "Webdings") return shown.toStdString();
    QString stored = shown;
    for (QChar& c : stored) {
        if (font == "Symbol" && c == ElementGlyph) c = QLatin1Char('e');
        if (font == "Webdings" && c == RightGlyph()) c = QLatin1Char('4');
        if (font == "Webdings" && c == UpGlyph) c = QLatin1Char('5');
    }
    return stored.toStdString();
}

QFont FontOf(const CharFormat& format) {
    static std::map<std::pair<int, bool>, QFont> fonts;
    const auto [found, isNew] = fonts.try_emplace({format.Size, format.Bold});
    if (isNew) {
        QFont font(StatementFont(), std::max(1, format.Size));
        font.setStyleHint(QFont::Monospace);
        font.setBold(format.Bold);
        found->second = font;
    }
    return found->second;
}

QTextCharFormat TextFormat(const CharFormat& format) {
    // The latest few: to make one takes longer than to lay out the characters that have it.
    static std::vector<std::pair<CharFormat, QTextCharFormat>> made;
    const auto found = std::find_if(made.begin(), made.end(),
                                    [&](const auto& each) { return each.first == format; });
    if (found != made.end()) return found->second;
    QTextCharFormat shown;
    shown.setFont(FontOf(format));
    shown.setForeground(QColor::fromRgb(format.Color));
    shown.setProperty(SurfaceFont, ToQt(format.Font));
    if (made.size() >= FormatsKept) made.clear();
    made.emplace_back(format, shown);
    return shown;
}

CharFormat FormatOf(const QTextCharFormat& shown) {
    CharFormat format;
    if (shown.hasProperty(SurfaceFont)) {
        format.Font = shown.property(SurfaceFont).toString().toStdString();
    }
    if (shown.fontPointSize() > 0) format.Size = qRound(shown.fontPointSize());
    if (shown.foreground().style() != Qt::NoBrush) {
        format.Color = shown.foreground().color().rgb() & 0xFFFFFF;
    }
    format.Bold = shown.fontWeight() >= QFont::Bold;
    return format;
}

void SubstituteFonts() {
    QFont::insertSubstitutions(StatementFont(),
                               {QStringLiteral("Liberation Mono"), QStringLiteral("Cousine"),
                                QStringLiteral("DejaVu Sans Mono")});
}

}  // namespace tessaryn
