#include "desktop/Layouts.h"

#include <gtest/gtest.h>

#include <QWidget>

#include "axioms/SubsetFrm.h"
#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/TestParser.h"
#include "output/AboutTessaryn.h"
#include "rules/Generalize.h"
#include "view/Comment.h"
#include "view/Display.h"
#include "view/Find.h"

using namespace tessaryn;

// 1920 x 1080 at a scale of 200 percent, without the frame.
TEST(Layouts, LargestWindowsFitASmallScreenWithLargeText) {
    constexpr QSize small(960 - 16, 540 - 48);
    StartProgram();
    StmtFontSize = 14;
    RuleFontSize = 12;
    ShowMainWindow(Proof);
    for (Form* form : std::initializer_list<Form*>{&Proof, &SubsetFrm, &TestParser, &AboutTessaryn,
                                                   &Generalize, &Comment, &Find}) {
        QWidget& window = WindowOf(*form).Window();
        const QSize needed = window.minimumSizeHint();
        EXPECT_EQ(needed, needed.boundedTo(small)) << form->Name;
        if (form == &Proof) continue;
        window.show();
        EXPECT_EQ(window.size(), window.size().boundedTo(small)) << form->Name;
        EXPECT_EQ(window.size(), window.size().boundedTo(RoomOnScreen(window))) << form->Name;
    }
}
