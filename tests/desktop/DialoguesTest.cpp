// What holds of all dialogues and menus: focus, default button, Esc.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <set>

#include "AllForms.h"
#include "ShownForm.h"
#include "desktop/EscRun.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "menu/StartProgram.h"
#include "view/PutStmt.h"

using namespace tessaryn;

namespace {

std::string Pressed;  // the name of the last button

// The buttons do no more than tell that they have been pressed.
void ListenToButtons(Form& form) {
    for (Control* control : form.Controls) {
        auto* button = dynamic_cast<Button*>(control);
        if (button != nullptr) button->Click = [button] { Pressed = button->Name; };
    }
}

std::string DrawnAsDefault(const QWidget& window) {
    for (const QPushButton* button : window.findChildren<QPushButton*>()) {
        if (button->isVisible() && button->isDefault()) return button->objectName().toStdString();
    }
    return "";
}

// The statement and the term without which some forms have nothing to show.
void WriteWhatTheFormsShow() {
    RuleMode = Rule::Axiom;
    NewStmtText = "x=x";
    PutStmt();
    RuleMode = 0;
    Arg1Pending = Arg2Pending = CommentLine = 1;
    GenExpression = SubstTarget = "x";
    SubstSource = "y";
    GenParseTable = SubstTargetTable = ParseExpression("x").nodes;
}

bool CanTakeFocus(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && widget.focusPolicy() != Qt::NoFocus;
}

// What gets the keys.
QWidget* Receiver() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    const bool finds = tessaryn::Find.Visible;
    return (finds ? WindowOf(tessaryn::Find).Window() : *MainWindow()).focusWidget();
}

// A key that is held down comes again, as the toolkit tells it when the window has changed.
void RepeatEsc() {
    for (const QEvent::Type type : {QEvent::KeyRelease, QEvent::KeyPress}) {
        QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
        event.setTimestamp(1234);
        QApplication::sendEvent(Receiver(), &event);
    }
}

// Each letter is something that the user does, "E" an Esc. True if that ends the program.
bool Ends(const char* actions) {
    StartProgram();
    ShowMainWindow(Proof);
    EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == MainWindow(); }));
    QApplication::setDoubleClickInterval(3600000);
    WatchEsc();
    auto* bar = MainWindow()->findChild<QMenuBar*>();
    for (const char* action = actions; *action != 0; ++action) {
        if (*action == 'E') QTest::keyClick(Receiver(), Qt::Key_Escape);
        if (*action == 'h') RepeatEsc();
        if (*action == 'D') QTest::keyClick(Receiver(), Qt::Key_Down);
        if (*action == 'm') bar->setActiveAction(bar->actions()[1]);
        if (*action == 'c') PopupMenu(Proof.mnuEdit);
        if (*action == 'f') Dispatch([] { SendChoose(Proof.optFind); });
        if (*action == 'n') {
            Beep("Because.");
            QApplication::processEvents();
        }
        if (*action == 'r') RuleMode = 2;
        if (*action == 'w') {
            QApplication::setDoubleClickInterval(1);
            QTest::qWait(5);
        }
    }
    return Ending();
}

}  // namespace

TEST(Dialogues, EachShowingStartsAnewAndEnterPressesWhatIsDrawnAsDefault) {
    for (Form* form : AllForms) {
        if (form == &Proof || form == &StartUp) continue;  // which have no buttons of a box
        StartProgram();
        WriteWhatTheFormsShow();
        ListenToButtons(*form);
        ShowMainWindow(Proof);
        std::set<const QWidget*> firsts;
        for (int showing = 0; showing < 2; ++showing) {
            ClosedBy(*form, [&](QWidget& window) {
                firsts.insert(window.focusWidget());
                for (const Control* control : form->Controls) {
                    QWidget* widget = WidgetOf(*control);
                    if (widget == nullptr || !CanTakeFocus(*widget)) continue;
                    widget->setFocus();
                    Pressed.clear();
                    const std::string drawn = DrawnAsDefault(window);
                    QTest::keyClick(widget, Qt::Key_Return);
                    EXPECT_EQ(Pressed, drawn) << form->Name << ", " << control->Name;
                    if (qobject_cast<QPushButton*>(widget) != nullptr) {
                        EXPECT_EQ(Pressed, control->Name) << form->Name;
                    }
                }
            });
        }
        EXPECT_EQ(firsts.size(), 1u) << form->Name;
    }
}

TEST(Menus, EscGivesTheNextKeyToTheDisplay) {
    EXPECT_FALSE(Ends("mE"));
    EXPECT_EQ(QApplication::focusWidget(), WidgetOf(Proof.RTB));
}

TEST(Esc, EndsTheProgramOnlyIfItHasClosedNothing) {
    for (const char* actions : {"E", "mEDE", "mEEwE", "cEwE", "fEwE", "nEwE"}) {
        EXPECT_TRUE(Ends(actions)) << actions;
    }
    // m: a menu of the bar, c: a context menu, f: Find, n: a note, r: a rule; w: a pause.
    for (const char* actions : {"mE", "mEE", "mEEE", "mEwE", "cE", "cEE", "fE", "fEE", "nE", "nEE",
                                "rE", "rEh", "fEwh"}) {
        EXPECT_FALSE(Ends(actions)) << actions;
    }
    EXPECT_FALSE(Ends("rnE"));
    EXPECT_EQ(RuleMode, 0) << "a note in sight keeps no rule pending";
}
