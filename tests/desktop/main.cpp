#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/Desktop.h"
#include "desktop/InputWatch.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"

int main(int argc, char* argv[]) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tessaryn::SubstituteFonts();
    tessaryn::WatchInput(tessaryn::FadeNote);
    const int result = RUN_ALL_TESTS();
    tessaryn::ForgetNote();
    tessaryn::ForgetWindows();
    return result;
}
