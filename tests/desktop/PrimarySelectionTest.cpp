// The selection that the middle mouse button pastes. Only a real X server has one: CMake runs this
// in a virtual one.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include "ShownForm.h"
#include "entry/TestParser.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "menu/StartProgram.h"
#include "view/PutStmt.h"

using namespace tessaryn;

TEST(PrimarySelection, GoesFromTheProofByTheMiddleButtonAndOnFromTheBox) {
    const QClipboard& clipboard = *QGuiApplication::clipboard();
    if (!clipboard.supportsSelection()) GTEST_SKIP() << "no X server";
    StartProgram();
    RuleMode = Rule::Axiom;
    NewStmtText = "x @ s";
    PutStmt();
    ShowMainWindow(Proof);
    const auto offered = [&](const char* text) {
        return QTest::qWaitFor(
            [&] { return clipboard.text(QClipboard::Selection) == QLatin1String(text); }, 60000);
    };
    Dispatch([] { Proof.RTB.SelStart = 0; });
    QTest::keyClick(WidgetOf(Proof.RTB), Qt::Key_End, Qt::ShiftModifier);
    EXPECT_TRUE(offered("1\tx @ s"));
    ClosedBy(TestParser, [&](QWidget& window) {
        auto& editor = Find<QTextEdit>(window, "RTB");
        QTest::mouseClick(editor.viewport(), Qt::MiddleButton);
        EXPECT_EQ(editor.toPlainText(), QStringLiteral("1x \u03B5 s"));
        EXPECT_TRUE(Find<QPushButton>(window, "CmdUndo").isEnabled());
        QTest::mouseDClick(editor.viewport(), Qt::LeftButton, {},
                           editor.cursorRect().center() - QPoint(2, 0));
        QTest::mouseRelease(editor.viewport(), Qt::LeftButton);
        EXPECT_TRUE(offered("s"));
    });
}
