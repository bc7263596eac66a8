// What a person who listens hears the controls of the windows called.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <string>

#include "axioms/InductionForm.h"
#include "axioms/SubsetFrm.h"
#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"
#include "desktop/PaintedText.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "editing/Find.h"
#include "entry/MyInputBox.h"
#include "entry/TestParser.h"
#include "entry/Warning.h"
#include "mainwindow/Proof.h"
#include "menu/StartProgram.h"
#include "output/AboutTessaryn.h"
#include "output/PrintProof.h"
#include "output/Recovery.h"
#include "output/SaveChanges.h"
#include "output/SelectDir.h"
#include "output/StartUp.h"
#include "output/Tips.h"
#include "rules/Generalize.h"
#include "rules/Substitution.h"

using namespace tessaryn;

namespace {

// Controls of a window that take the focus and have no name.
std::string NamelessIn(const QWidget& window) {
    std::string nameless;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() != nullptr) continue;
        const QString name = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
        if (!name.trimmed().isEmpty()) continue;
        nameless += std::string(widget->metaObject()->className()) + " " +
                    widget->objectName().toStdString() + ";";
    }
    return nameless;
}

}  // namespace

TEST(Names, EveryControlThatTakesTheFocusHasOne) {
    StartProgram();
    ShowMainWindow(Proof);
    Form* const forms[] = {
        &Proof,         &TestParser,    &MyInputBox, &Generalize,  &Substitution, &SubsetFrm,
        &InductionForm, &SaveChanges,   &Recovery,   &PrintProof,  &SelectDir,    &StartUp,
        &Tips,          &AboutTessaryn, &Comment,    &EditCaption, &Find,         &Warning};
    for (Form* form : forms) {
        form->Caption = "A form";
        for (Control* control : form->Controls) {
            auto* label = dynamic_cast<Label*>(control);
            if (label != nullptr && label->Caption.empty()) label->Caption = "A label";
        }
        EXPECT_EQ(NamelessIn(WindowOf(*form).Window()), "") << form->Name;
    }
    ASSERT_TRUE(ShowHelpFile(""));
    QApplication::processEvents();
    for (QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_EQ(window->isVisible() ? NamelessIn(*window) : "", "");
    }

    const struct {
        const Control& control;
        const char* name;
    } rows[] = {
        {Proof.RTB, "Proof"},
        {MyInputBox.Text1, "How many?"},
        {InductionForm.RTB, "We want to prove (enter logical expression)..."},
        {Generalize.BoundVarTextBox, "Bound Variable:"},
        {PrintProof.Text2, "To Line Number:"},
        {SelectDir.DirectoryList, "Directory:"},
        {Comment.CommentBox, "Edit User Comment, Line 3"},
    };
    MyInputBox.Label1.Caption = "How many?";
    Comment.Caption = "Edit User Comment, Line 3";
    for (Form* form : forms) WindowOf(*form).Sync();
    for (const auto& row : rows) {
        auto* interface = QAccessible::queryAccessibleInterface(WidgetOf(row.control));
        EXPECT_EQ(interface->text(QAccessible::Name), ToQt(row.name));
    }
}

// A screen reader that goes from one window to the next would go round for ever.
TEST(Windows, MenusAreNoneOfTheirOwn) {
    StartProgram();
    ShowMainWindow(Proof);
    ShowModeless(Find);
    QAccessibleInterface* program = QAccessible::queryAccessibleInterface(qApp);
    for (int i = 0; i < program->childCount(); ++i) {
        EXPECT_NE(program->child(i)->role(), QAccessible::PopupMenu);
    }
}
