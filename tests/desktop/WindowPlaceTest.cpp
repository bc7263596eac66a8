#include "desktop/WindowPlace.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>
#include <QThreadPool>
#include <QWidget>

#include "../OwnDirectory.h"
#include "desktop/Desktop.h"
#include "mainwindow/Proof.h"
#include "menu/StartProgram.h"
#include "platform/Files.h"

using namespace tessaryn;

using WindowPlaceKept = OwnDirectory;

TEST_F(WindowPlaceKept, IsTakenWhenTheWindowIsFirstNotMaximised) {
    StartProgram();
    WindowPlaceFile = Path("window");
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect usual({screen.width() / 8, screen.height() / 8}, screen.size() * 3 / 4);
    const auto shown = [] {
        ShowMainWindow(Proof);
        QApplication::processEvents();
        EXPECT_TRUE(MainWindow()->isMaximized());
        MainWindow()->showNormal();
        QTest::qWait(20);
        return MainWindow()->geometry();
    };
    for (const char* unusable : {"", "12", "a b c d", "90000 10 600 400", "10 -90 600 400"}) {
        WriteFile("window", unusable);
        EXPECT_EQ(shown(), usual) << unusable;
    }
    MainWindow()->setGeometry(70, 50, 610, 420);
    EXPECT_TRUE(QTest::qWaitFor(
        [] { return ReadWholeFile(WindowPlaceFile).value_or("") == "70 50 610 420\n"; }, 60000));
    EXPECT_EQ(shown(), QRect(70, 50, 610, 420));
    MainWindow()->showMaximized();
    QTest::qWait(400);
    QThreadPool::globalInstance()->waitForDone();
    EXPECT_EQ(ReadWholeFile(WindowPlaceFile), "70 50 610 420\n");
    WindowPlaceFile.clear();
}
