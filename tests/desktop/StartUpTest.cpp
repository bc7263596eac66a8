// The forms of the start as windows, and the tree of directories.
#include "output/StartUp.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"
#include "desktop/PaintedText.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "output/SelectDir.h"
#include "output/Settings.h"

using namespace tessaryn;

namespace {

// Shows a form, does something in its window, and tells whether that closed it.
template <class Step>
bool Closes(Form& form, Step step) {
    bool closed = false;
    QTimer::singleShot(20, qApp, [&] {
        step(WindowOf(form).Window());
        closed = !form.Visible;
        form.Hide();
        SyncWindows();
    });
    Dispatch([&form] { ShowModal(form); });
    return closed;
}

}  // namespace

TEST(StartUp, ClosesOnAnyKeyOrClick) {
    StartProgram();
    EXPECT_TRUE(Closes(StartUp, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_X); }));
    EXPECT_TRUE(Closes(StartUp, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); }));
    EXPECT_TRUE(Closes(StartUp, [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Print); }));
    EXPECT_TRUE(Closes(StartUp, [](QWidget& window) {
        QTest::mouseClick(window.findChild<QLabel*>(), Qt::LeftButton);
    }));
    EXPECT_FALSE(
        Closes(SelectDir, [](QWidget& window) { QTest::mouseClick(&window, Qt::LeftButton); }));
    ForgetWindows();
}

TEST(SelectDir, TreeGoesToTheDirectoryAndTellsWhereTheUserGoes) {
    StartProgram();
    const QTemporaryDir crowd;
    for (int i = 0; i < 300; ++i) QDir(crowd.path()).mkpath(QString::number(i));
    const QTemporaryDir directory(crowd.filePath(QStringLiteral("m")));
    ASSERT_TRUE(QDir(directory.path()).mkpath(QStringLiteral("first")));
    ASSERT_TRUE(QDir(directory.path()).mkpath(QStringLiteral("second ü")));
    DefaultDir = directory.filePath(QStringLiteral("first")).toStdString();
    Closes(SelectDir, [&](QWidget& window) {
        auto& tree = *window.findChild<QTreeView*>();
        const auto shows = [&](const char* name) {
            return tree.currentIndex().data().toString() == QString::fromUtf8(name) &&
                   tree.viewport()->rect().contains(tree.visualRect(tree.currentIndex()));
        };
        // The tree reads the disk in the background: what comes late must not push the place away.
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return shows("first") &&
                   tree.indexBelow(tree.currentIndex()).data().toString() == ToQt("second ü");
        }));
        EXPECT_EQ(SelectDir.CurrentDefault.Caption, DefaultDir);
        QTest::keyClick(&tree, Qt::Key_Down);
        EXPECT_TRUE(shows("second ü"));
        EXPECT_EQ(ToQt(SelectDir.CurrentDefault.Caption),
                  directory.filePath(QStringLiteral("second ü")));
    });
    ForgetWindows();
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
    ForgetWindows();
}
