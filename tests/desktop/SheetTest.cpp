#include "desktop/Sheet.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <cmath>

#include "desktop/EditBox.h"
#include "desktop/ProofDisplay.h"
#include "platform/Form.h"

using namespace tessaryn;

// The colours of the proof and of expressions are made for white.
TEST(Sheet, IsWhiteUnderAnyTheme) {
    struct : Form {
        using Form::Form;
        RichTextBox proof{*this, "RTB"};
    } form("Sheets");
    const auto lightness = [](const QColor& colour) {  // as the eye takes it, 0 to 1
        return 0.2126 * std::pow(colour.redF(), 2.2) + 0.7152 * std::pow(colour.greenF(), 2.2) +
               0.0722 * std::pow(colour.blueF(), 2.2);
    };
    const QPalette before = QApplication::palette();
    for (const auto& [ground, text] : {std::pair(0x232629, 0xFCFCFC), {0x002B36, 0x839496}}) {
        QPalette dark{QColor::fromRgb(QRgb(ground))};
        for (const auto role : {QPalette::Text, QPalette::HighlightedText, QPalette::Highlight}) {
            dark.setColor(role, QColor::fromRgb(QRgb(text)));
        }
        dark.setColor(QPalette::Base, QColor::fromRgb(QRgb(ground)));
        QApplication::setPalette(dark);
        ProofDisplay display(form.proof);
        EditBox box(form.proof);
        for (QAbstractScrollArea* sheet : {static_cast<QAbstractScrollArea*>(&display),
                                           static_cast<QAbstractScrollArea*>(&box)}) {
            EXPECT_EQ(sheet->viewport()->grab().toImage().pixelColor(50, 50), QColor(Qt::white));
            for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
                const auto contrast = [&](QPalette::ColorRole one, QPalette::ColorRole other) {
                    const double first = lightness(sheet->palette().color(group, one)) + 0.05;
                    const double second = lightness(sheet->palette().color(group, other)) + 0.05;
                    return std::max(first / second, second / first);
                };
                EXPECT_GT(contrast(QPalette::Text, QPalette::Base), 4.5);
                EXPECT_GT(contrast(QPalette::HighlightedText, QPalette::Highlight), 4.5);
            }
        }
    }
    QApplication::setPalette(before);
}
