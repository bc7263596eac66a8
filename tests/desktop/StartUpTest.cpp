// The forms of the start as windows, and the tree of directories.
#include "output/StartUp.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include "ShownForm.h"
#include "desktop/EscRun.h"
#include "desktop/PaintedText.h"
#include "mainwindow/Proof.h"
#include "menu/StartProgram.h"
#include "output/SelectDir.h"
#include "output/Settings.h"

using namespace tessaryn;

TEST(StartUp, ClosesOnAnyKeyOrClick) {
    StartProgram();
    ShowMainWindow(Proof);
    for (const Qt::Key key : {Qt::Key_X, Qt::Key_Print, Qt::Key_Escape}) {
        EXPECT_TRUE(ClosedBy(StartUp, [&](QWidget& window) { QTest::keyClick(&window, key); }));
    }
    EXPECT_TRUE(EscIsSpent()) << "an Esc right behind it does not end the program";
    EXPECT_TRUE(ClosedBy(StartUp, [](QWidget& window) {
        QTest::mouseClick(window.findChild<QLabel*>(), Qt::LeftButton);
    }));
    // In the main window too, which does nothing else with the click.
    const int shown = FormsShown;
    EXPECT_TRUE(ClosedBy(StartUp, [](QWidget&) {
        const QPoint place = MainWindow()->rect().center();
        QTest::mouseClick(MainWindow()->windowHandle(), Qt::LeftButton, {}, place);
    }));
    EXPECT_EQ(FormsShown, shown + 1);
}

TEST(SelectDir, TreeGoesToTheDirectoryAndTellsWhereTheUserGoes) {
    StartProgram();
    const QTemporaryDir crowd;
    for (int i = 0; i < 300; ++i) QDir(crowd.path()).mkpath(QString::number(i));
    const QTemporaryDir directory(crowd.filePath(QStringLiteral("m")));
    ASSERT_TRUE(QDir(directory.path()).mkpath(QStringLiteral("first")));
    ASSERT_TRUE(QDir(directory.path()).mkpath(QStringLiteral("second ü")));
    DefaultDir = directory.filePath(QStringLiteral("first")).toStdString();
    ClosedBy(SelectDir, [&](QWidget& window) {
        auto& tree = *window.findChild<QTreeView*>();
        const auto shows = [&](const char* name) {
            return tree.currentIndex().data().toString() == QString::fromUtf8(name) &&
                   tree.viewport()->rect().contains(tree.visualRect(tree.currentIndex()));
        };
        // The tree reads the disk in the background: what comes late must not push the place away.
        const auto read = [&] {
            return shows("first") &&
                   tree.indexBelow(tree.currentIndex()).data().toString() == ToQt("second ü");
        };
        EXPECT_TRUE(QTest::qWaitFor(read, 60000));
        EXPECT_EQ(SelectDir.CurrentDefault.Caption, DefaultDir);
        QTest::keyClick(&tree, Qt::Key_Down);
        EXPECT_TRUE(shows("second ü"));
        EXPECT_EQ(ToQt(SelectDir.CurrentDefault.Caption),
                  directory.filePath(QStringLiteral("second ü")));
    });
}

TEST(RecentFiles, NameStandsInTheMenuAsItIs) {
    StartProgram();
    Proof.optFile1.Literal = true;
    Proof.optFile1.Caption = "/home/Q&A  files/x.proof";
    ShowMainWindow(Proof);
    bool found = false;
    for (const QAction* action : WindowOf(Proof).Window().findChildren<QAction*>()) {
        found = found || action->text() == QStringLiteral("/home/Q&&A  files/x.proof");
    }
    EXPECT_TRUE(found);
}
