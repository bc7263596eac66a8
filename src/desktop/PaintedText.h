// A stretch of a rich-text surface as Qt shows it: UTF-16, with glyphs in place of the characters
// that the surface keeps in Symbol and Webdings, and the way back to the surface's bytes.
#pragma once

#include <QFont>
#include <QString>
#include <QTextCharFormat>
#include <string>
#include <vector>

#include "platform/RichTextBox.h"

namespace tessaryn {

struct PaintedText {
    struct Span {
        int start;   // UTF-16 units of text
        int length;  // the same
        CharFormat format;
    };

    int UnitAt(int byte) const;  // the unit that shows the byte at this position of the surface

    QString text;            // a CR LF is one paragraph separator
    std::vector<int> bytes;  // position in the surface of each unit, and of the end
    std::vector<Span> spans;
};

// Bytes first to last - 1 of a surface. What is no UTF-8 is shown as a replacement character.
PaintedText PaintText(RichTextBox& box, int first, int last);
// The same as a listener gets to hear it: the text alone, a line end as LF.
QString ReadText(RichTextBox& box, int first, int last);

// The way back: what the surface holds for a shown text in a font of the surface.
std::string StoredText(const QString& shown, const std::string& font);

QFont FontOf(const CharFormat& format);
// Carries the surface's font name along, so that FormatOf gives the very same format back.
QTextCharFormat TextFormat(const CharFormat& format);
CharFormat FormatOf(const QTextCharFormat& shown);

// Names the fonts that stand in for those of the surface. Once, at the start.
void SubstituteFonts();

inline QString ToQt(const std::string& text) {
    return QString::fromStdString(text);
}

}  // namespace tessaryn
