// The dialogues in which occurrences are picked, by mouse and by keyboard.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>

#include "ShownForm.h"
#include "document/Document.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "menu/StartProgram.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"
#include "view/Display.h"
#include "view/PutStmt.h"

using namespace tessaryn;

namespace {

class OccurrenceDialogues : public testing::Test {
  protected:
    void SetUp() override {
        StartProgram();
        RuleMode = Rule::Axiom;
        NewStmtText = "x+f(x)=y";
        PutStmt();
    }
};

std::string Line(int number) {
    return number <= StmtCount ? StmtText(number) : "";
}

}  // namespace

TEST_F(OccurrenceDialogues, GeneralizeWorksByKeysAlone) {
    RuleMode = Rule::EGen;
    Arg1Pending = 1;
    GenExpression = "x";
    GenParseTable = ParseExpression("x").nodes;
    ClosedBy(Generalize, [](QWidget& window) {
        auto* name = &Find<QLineEdit>(window, "BoundVarTextBox");
        auto* statement = &Find<QTextEdit>(window, "RTB");
        const auto button = [&](const char* of) { return &Find<QPushButton>(window, of); };
        EXPECT_EQ(window.focusWidget(), name);
        QTest::keyClicks(name, "c");
        EXPECT_TRUE(button("cmdSelectAll")->isEnabled());
        QTest::keyClick(name, Qt::Key_Return);  // presses no button
        EXPECT_EQ(ConvertEpsilon(Generalize.RTB), "x+f(x)=y");
        EXPECT_EQ(statement->cursorWidth(), 0);  // one caret, where the focus is
        QTest::keyClick(name, Qt::Key_Tab);
        EXPECT_EQ(window.focusWidget(), statement);
        EXPECT_GT(statement->cursorWidth(), 0);
        for (int i = 0; i < 4; ++i) QTest::keyClick(statement, Qt::Key_Right);
        QTest::keyClick(statement, Qt::Key_Return);
        EXPECT_EQ(ConvertEpsilon(Generalize.RTB), "x+f(c)=y");
        EXPECT_EQ(statement->toPlainText(), "x+f(c)=y");
        EXPECT_TRUE(name->isHidden());

        // Reset disables the button that has the focus, and asks for the name again.
        button("cmdReset")->setFocus();
        QTest::keyClick(button("cmdReset"), Qt::Key_Return);
        EXPECT_EQ(window.focusWidget(), name);
        QTest::keyClicks(name, "d");
        QTest::mouseClick(button("cmdSelectAll"), Qt::LeftButton);
        QTest::mouseClick(button("cmdContinue"), Qt::LeftButton);
        EXPECT_EQ(Line(2), "EXIST(d):d+f(d)=y");
    });
}

TEST_F(OccurrenceDialogues, SubstitutionTakesAClickOnTheCharacter) {
    RuleMode = Rule::Substitute;
    Arg1Pending = Arg2Pending = 1;
    SubstSource = "(a+b)";
    SubstTarget = "x";
    SubstTargetTable = ParseExpression("x").nodes;
    ClosedBy(Substitution, [](QWidget& window) {
        auto* statement = &Find<QTextEdit>(window, "RTB");
        QTextCursor ahead = statement->textCursor();
        ahead.setPosition(4);
        const QRect place = statement->cursorRect(ahead);
        // The right half of the character is nearer to the place behind it, and means it all the
        // same.
        const int width = statement->fontMetrics().averageCharWidth();
        QTest::mouseClick(statement->viewport(), Qt::LeftButton, {},
                          place.center() + QPoint(width - 2, 0));
        EXPECT_EQ(statement->toPlainText(), "x+f((a+b))=y");
        QTest::mouseClick(&Find<QPushButton>(window, "cmdContinue"), Qt::LeftButton);
        EXPECT_EQ(Line(2), "x+f(a+b)=y");
    });
}
