// What holds of all dialogues: first focus and default button.
#include <gtest/gtest.h>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <set>

#include "ShownForm.h"
#include "axioms/InductionForm.h"
#include "axioms/SubsetFrm.h"
#include "document/PutStmt.h"
#include "expr/Parse.h"
#include "mainwindow/MyInputBox.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "mainwindow/TestParser.h"
#include "output/AboutTessaryn.h"
#include "output/PrintProof.h"
#include "output/SaveChanges.h"
#include "output/SelectDir.h"
#include "output/Tips.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"
#include "view/Comment.h"
#include "view/EditCaption.h"
#include "view/Find.h"
#include "view/Warning.h"

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

}  // namespace

TEST(Dialogues, EachShowingStartsAnewAndEnterPressesWhatIsDrawnAsDefault) {
    Form* forms[] = {&AboutTessaryn, &Comment,      &EditCaption, &tessaryn::Find, &Generalize,
                     &InductionForm, &MyInputBox,   &PrintProof,  &SelectDir,      &SaveChanges,
                     &SubsetFrm,     &Substitution, &TestParser,  &Tips,           &Warning};
    for (Form* form : forms) {
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
