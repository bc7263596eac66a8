// The window of one form: its controls as widgets, and the two ways between them.
//
// There is no logic in the widgets: what the user does goes to the logic through Dispatch, and what
// the logic has set comes back in Sync, by comparison with what is shown.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/Form.h"

class QKeyEvent;
class QMenu;
class QMenuBar;

namespace tessaryn {

// What stands for a control, and how the two are kept alike.
struct Binding {
    Control* control;
    QWidget* widget = nullptr;   // nullptr for a menu item or a timer
    std::function<void()> pull;  // from the widget into the control; may be empty
    std::function<void()> sync;  // from the control into the widget
};

enum class WindowKind { Main, Dialogue };

class FormWindow : public QObject {
  public:
    FormWindow(Form& form, WindowKind kind, QWidget* parent);
    ~FormWindow() override;

    Form& TheForm() { return form_; }
    QWidget& Window() { return *window_; }

    // Only a dialogue can do so.
    void StandInFrontOf(QWidget& below);
    // Shows the window with its first focus; modal: blocks all others but the manual.
    void Show(bool modal);
    // The keyboard goes back to what the window stood in front of.
    void Hide();

    void Pull();
    void Sync();

    QWidget* WidgetOf(const Control& control) const;
    QMenu* MenuOf(const MenuItem& item) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void MakeWindow(WindowKind kind, QWidget* parent);
    void BindControls();
    void BuildMenus();
    QMenu* BuildMenu(MenuItem& title);
    void MarkMenus();
    bool OpenFirstMenu();
    void SetTabOrder();
    void FocusFirst();
    void SyncFocus();
    void MarkDefault();
    bool ComesTooLate(const QEvent& event) const;
    bool KeyPressed(QObject* watched, QKeyEvent& event);

    Form& form_;
    QPointer<QWidget> window_;
    std::vector<Binding> bindings_;
    QMenuBar* menuBar_ = nullptr;            // nullptr in a box without menus
    std::map<QObject*, Control*> controls_;  // by widget
    std::map<const MenuItem*, QMenu*> menus_;
    QPointer<QWidget> below_;  // what it stands in front of
    bool modal_ = false;       // since it was shown last
    bool shownBefore_ = false;
    std::unique_ptr<QObject> catcher_;  // of all input, for a form that takes it
};

}  // namespace tessaryn
