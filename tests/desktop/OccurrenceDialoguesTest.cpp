// The dialogues in which occurrences are picked, by mouse and by keyboard.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextEdit>
#include <QTimer>
#include <functional>

#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"
#include "document/PutStmt.h"
#include "document/Statement.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"
#include "view/Display.h"

using namespace tessaryn;

namespace {

struct Dialogue {
    QTextEdit* statement;
    std::function<QPushButton*(const char*)> button;
    QWidget* window;
};

class OccurrenceDialogues : public testing::Test {
  protected:
    void SetUp() override {
        // No loop runs after the end of a program until the application has started anew.
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        QApplication::exec();
        ForgetWindows();
        StartProgram();
        RuleMode = Rule::Axiom;
        NewStmtText = "x+f(x)=y";
        PutStmt();
    }
    void TearDown() override { ForgetWindows(); }

    // Shows the form, acts once it is up, and closes it if that has left it open.
    static void Run(Form& form, const std::function<void(const Dialogue&)>& act) {
        bool acted = false;
        QTimer::singleShot(0, &WindowOf(form), [&] {
            acted = true;
            QWidget* window = &WindowOf(form).Window();
            window->activateWindow();
            QApplication::processEvents();
            act({window->findChild<QTextEdit*>("RTB"),
                 [window](const char* name) {
                     return window->findChild<QPushButton*>(QString::fromLatin1(name));
                 },
                 window});
            form.Hide();
            SyncWindows();
        });
        ShowModal(form);
        EXPECT_TRUE(acted);
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
    Run(Generalize, [](const Dialogue& dialogue) {
        auto* name = dialogue.window->findChild<QLineEdit*>("BoundVarTextBox");
        EXPECT_EQ(dialogue.window->focusWidget(), name);
        QTest::keyClicks(name, "c");
        EXPECT_TRUE(dialogue.button("cmdSelectAll")->isEnabled());
        QTest::keyClick(name, Qt::Key_Return);  // presses no button
        EXPECT_EQ(ConvertEpsilon(Generalize.RTB), "x+f(x)=y");
        EXPECT_EQ(dialogue.statement->cursorWidth(), 0);  // one caret, where the focus is
        QTest::keyClick(name, Qt::Key_Tab);
        EXPECT_EQ(dialogue.window->focusWidget(), dialogue.statement);
        EXPECT_GT(dialogue.statement->cursorWidth(), 0);
        for (int i = 0; i < 4; ++i) QTest::keyClick(dialogue.statement, Qt::Key_Right);
        QTest::keyClick(dialogue.statement, Qt::Key_Return);
        EXPECT_EQ(ConvertEpsilon(Generalize.RTB), "x+f(c)=y");
        EXPECT_EQ(dialogue.statement->toPlainText(), "x+f(c)=y");
        EXPECT_TRUE(name->isHidden());

        // Reset disables the button that has the focus, and asks for the name again.
        dialogue.button("cmdReset")->setFocus();
        QTest::keyClick(dialogue.button("cmdReset"), Qt::Key_Return);
        EXPECT_EQ(dialogue.window->focusWidget(), name);
        QTest::keyClicks(name, "d");
        QTest::mouseClick(dialogue.button("cmdSelectAll"), Qt::LeftButton);
        QTest::mouseClick(dialogue.button("cmdContinue"), Qt::LeftButton);
        EXPECT_EQ(Line(2), "EXIST(d):d+f(d)=y");
    });
}

TEST_F(OccurrenceDialogues, SubstitutionTakesAClickOnTheCharacter) {
    RuleMode = Rule::Substitute;
    Arg1Pending = Arg2Pending = 1;
    SubstSource = "(a+b)";
    SubstTarget = "x";
    SubstTargetTable = ParseExpression("x").nodes;
    Run(Substitution, [](const Dialogue& dialogue) {
        QTextCursor ahead = dialogue.statement->textCursor();
        ahead.setPosition(4);
        const QRect place = dialogue.statement->cursorRect(ahead);
        // The right half of the character is nearer to the place behind it, and means it all the
        // same.
        const int width = dialogue.statement->fontMetrics().averageCharWidth();
        QTest::mouseClick(dialogue.statement->viewport(), Qt::LeftButton, {},
                          place.center() + QPoint(width - 2, 0));
        EXPECT_EQ(dialogue.statement->toPlainText(), "x+f((a+b))=y");
        QTest::mouseClick(dialogue.button("cmdContinue"), Qt::LeftButton);
        EXPECT_EQ(Line(2), "x+f(a+b)=y");
    });
}
