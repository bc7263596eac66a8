// A line of the proof display: places and bytes agree wherever it is cut, and a line of megabytes
// is laid out where someone looks.
#include "desktop/LineLayout.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include "platform/Form.h"
#include "text/TextSteps.h"

using namespace tessaryn;

namespace {

struct Laid {
    explicit Laid(const std::string& text) {
        box.SetText(text);
        style.font = FontOf({});
        style.columnWidth = QFontMetricsF(style.font).horizontalAdvance(QLatin1Char('0'));
        style.tabColumns = 6;
    }
    Form form{"Any"};
    RichTextBox box{form, "RTB"};
    LineStyle style;
};

}  // namespace

TEST(LineLayout, PlacesAndBytesAgreeOverAllItsPieces) {
    std::string text;
    while (text.size() < 8000) text += "1\tab é\t(x) & ";
    Laid laid(text);
    LineLayout line(laid.box, 0, static_cast<int>(text.size()), laid.style);
    int columns = 0;
    int at = 0;
    for (int next = 0; at < static_cast<int>(text.size()); at = next) {
        next = StepEnd(text, at);
        if (columns % 2000 < 10 || columns % 100 == 0) {
            ASSERT_NEAR(line.XAt(at), columns * laid.style.columnWidth, 1) << at;
            ASSERT_EQ(line.ByteAt(line.XAt(at) + 2), at);
            ASSERT_EQ(line.Next(at, QTextLayout::SkipCharacters), next);
            ASSERT_EQ(line.Previous(next, QTextLayout::SkipCharacters), at);
        }
        columns += text[static_cast<std::size_t>(at)] == '\t' ? 6 - columns % 6 : 1;
    }
    EXPECT_NEAR(line.Width(), columns * laid.style.columnWidth, 1);
    EXPECT_EQ(line.ByteAt(line.Width() + 1000), at);
    EXPECT_GT(line.PiecesLaidOut(), 3);
}

TEST(LineLayout, LaysOutWhatIsLookedAt) {
    const int size = 5'000'000;
    Laid laid(std::string(size, 'x'));
    LineLayout line(laid.box, 0, size, laid.style);
    const double end = size * laid.style.columnWidth;
    EXPECT_NEAR(line.Width(), end, 1);
    EXPECT_NEAR(line.XAt(size - 1), end - laid.style.columnWidth, 1);
    EXPECT_EQ(line.ByteAt(end - 1, QTextLine::CursorOnCharacter), size - 1);
    EXPECT_NEAR(line.ByteAt(end / 2), size / 2.0, 1);
    // The characters on either side of a cut are both there, the right one selected.
    QImage picture(200, 40, QImage::Format_RGB32);
    const auto ink = [&picture](int x) {  // the darkest pixel of a character
        QColor darkest(Qt::white);
        for (int i = 0; i < 8 * picture.height(); ++i) {
            const QColor colour = picture.pixelColor(x + 1 + i % 8, i / 8);
            if (colour.green() < darkest.green()) darkest = colour;
        }
        return darkest;
    };
    picture.fill(Qt::white);
    QPainter painter(&picture);
    QTextCharFormat red;
    red.setForeground(Qt::red);
    const int cut = 2004;  // the first TAB stop behind 2000 columns
    const double left = line.XAt(cut) - 100;
    line.Draw(painter, {-left, 30}, left, left + 200, cut, cut + 1, red);
    EXPECT_LT(ink(90).red(), 128);
    EXPECT_GT(ink(100).red(), 240);
    EXPECT_LT(ink(100).green(), 128);
    EXPECT_LT(ink(110).red(), 128);
    EXPECT_LT(line.PiecesLaidOut(), 8);
}
