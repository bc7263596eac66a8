#include "desktop/ShownText.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>

#include "platform/Platform.h"

using namespace tessaryn;

// As files of any content may bring them.
TEST(ShownText, KeepsTheEndsOfATextThatIsTooLong) {
    EXPECT_EQ(ShownText("a [*] & <b>"), QStringLiteral("a [*] & <b>"));
    std::string text = "head x";
    for (int i = 0; i < 1'000'000; ++i) text += "€";
    const QString shown = ShownText(text + " tail");
    EXPECT_LT(shown.size(), 1000);
    EXPECT_TRUE(shown.startsWith(QStringLiteral("head")) && shown.endsWith(QStringLiteral("tail")));
    EXPECT_FALSE(shown.contains(QChar::ReplacementCharacter));
}

TEST(MsgBox, ShowsTextAndTitleAsTheyStand) {
    MsgBox({"<b>[*]", "[*]x"});
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    const QString told = box->windowHandle()->title() + box->text();
    box->accept();
    EXPECT_EQ(told, QStringLiteral("[*]x<b>[*]"));
}
