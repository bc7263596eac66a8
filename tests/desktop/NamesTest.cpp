// What a person who listens hears the controls of the windows called.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <string>

#include "AllForms.h"
#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"
#include "desktop/PaintedText.h"
#include "menu/StartProgram.h"

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
    for (Form* form : AllForms) {
        form->Caption = "A form";
        for (Control* control : form->Controls) {
            auto* label = dynamic_cast<Label*>(control);
            if (label != nullptr && label->Caption.empty()) label->Caption = "A label";
        }
        EXPECT_EQ(NamelessIn(WindowOf(*form).Window()), "") << form->Name;
    }
    ASSERT_TRUE(ShowHelpFile("", ""));
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
    for (Form* form : AllForms) WindowOf(*form).Sync();
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
