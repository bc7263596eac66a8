#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>

#include "desktop/Desktop.h"
#include "desktop/EscRun.h"
#include "desktop/InputWatch.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"

namespace {

// Each test finds the desktop as a program does that has just started.
class FreshDesktop : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override {
        // No loop runs after the end of a program until the application has started anew.
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        QApplication::exec();
        QApplication::setDoubleClickInterval(400);
    }
    void OnTestEnd(const testing::TestInfo&) override {
        tessaryn::ForgetNote();
        tessaryn::ForgetWindows();
    }
};

}  // namespace

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tessaryn::SubstituteFonts();
    tessaryn::WatchInput(tessaryn::FadeNote);
    tessaryn::WatchEsc();
    testing::UnitTest::GetInstance()->listeners().Append(new FreshDesktop);
    return RUN_ALL_TESTS();
}
