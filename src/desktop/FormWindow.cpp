#include "desktop/FormWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QWindow>
#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

#include "desktop/Bindings.h"
#include "desktop/Desktop.h"
#include "desktop/EscRun.h"
#include "desktop/HelpViewer.h"
#include "desktop/Keys.h"
#include "desktop/Layouts.h"
#include "desktop/Mnemonics.h"
#include "desktop/PaintedText.h"
#include "desktop/ShownText.h"
#include "desktop/SmallBoxes.h"

namespace tessaryn {

namespace {

void RequestClose(Form& form) {
    Dispatch([&form] { form.Close(); });
}

// Whether a window closes is for its form to say.
class FormMainWindow : public QMainWindow {
  public:
    explicit FormMainWindow(Form& form) : form_(form) {}

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->setAccepted(Ending());
        if (!Ending()) RequestClose(form_);
    }

  private:
    Form& form_;
};

class FormDialogue : public QDialog {
  public:
    FormDialogue(Form& form, QWidget* parent) : QDialog(parent), form_(form) {}
    void reject() override { RequestClose(form_); }
    using QDialog::create;

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->setAccepted(Ending());
        if (!Ending()) RequestClose(form_);
    }

  private:
    Form& form_;
};

// Esc closes one menu after the other and leaves the menu bar with the last: the next key is for
// what had the focus before.
class FormMenu : public QMenu {
  public:
    FormMenu(QMenuBar& bar, QWidget* parent) : QMenu(parent), bar_(bar) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        QMenu::keyPressEvent(event);
        if (event->key() != Qt::Key_Escape || QApplication::activePopupWidget() != nullptr) return;
        if (!bar_.hasFocus()) return;
        QKeyEvent leave(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(&bar_, &leave);
        EscHasLeftMenuBar();
    }

  private:
    QMenuBar& bar_;
};

// While it lives, whatever the user does goes to a form, whichever window it is done in.
class InputCatcher : public QObject {
  public:
    explicit InputCatcher(Form& form) : form_(form) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        switch (event->type()) {
            case QEvent::ShortcutOverride:
                event->accept();  // no shortcut, but a key like any other
                return true;
            case QEvent::KeyPress:
                Press(KeyOf(*static_cast<QKeyEvent*>(event)).value_or(KeyEvent{}));
                return true;
            case QEvent::MouseButtonRelease:
                Dispatch([this] { form_.Clicked(); });
                return true;
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonDblClick:
            case QEvent::Wheel:
                return true;
            default:
                return false;
        }
    }

  private:
    void Press(const KeyEvent& key) {
        if (key.key == Key::Esc) EscHasClosedSomething();
        DispatchKey(form_, nullptr, key);
    }

    Form& form_;
};

}  // namespace

FormWindow::FormWindow(Form& form, WindowKind kind, QWidget* parent) : form_(form) {
    MakeWindow(kind, parent);
    window_->setObjectName(ToQt(form.Name));
    window_->installEventFilter(this);
    BindControls();
    Sync();
    if (kind == WindowKind::Dialogue) MarkMenus();
    SetTabOrder();
}

FormWindow::~FormWindow() {
    delete window_;
}

void FormWindow::MakeWindow(WindowKind kind, QWidget* parent) {
    QWidget* inside = nullptr;
    if (kind == WindowKind::Main) {
        auto* window = new FormMainWindow(form_);
        inside = new QWidget(window);
        window->setCentralWidget(inside);
        menuBar_ = window->menuBar();
        window_ = window;
    } else {
        window_ = inside = new FormDialogue(form_, parent);
        if (!form_.MenuBar.empty()) menuBar_ = new QMenuBar(inside);
    }
    for (Control* control : form_.Controls) {
        if (dynamic_cast<MenuItem*>(control) != nullptr) continue;
        bindings_.push_back(Bind(*control, inside, kind));
        if (QWidget* widget = bindings_.back().widget) controls_[widget] = control;
    }
    LayOut(*this, *inside);
    if (menuBar_ == nullptr) return;
    BuildMenus();
    if (kind == WindowKind::Dialogue) inside->layout()->setMenuBar(menuBar_);
}

void FormWindow::BindControls() {
    for (const auto& [widget, control] : controls_) widget->installEventFilter(this);
}

// --- menus

void FormWindow::BuildMenus() {
    for (MenuItem* title : form_.MenuBar) menuBar_->addMenu(BuildMenu(*title));
    // A menu that only pops up hangs under no title.
    for (Control* control : form_.Controls) {
        auto* item = dynamic_cast<MenuItem*>(control);
        if (item != nullptr && !item->Items.empty() && MenuOf(*item) == nullptr) BuildMenu(*item);
    }
}

QMenu* FormWindow::BuildMenu(MenuItem& title) {
    auto* menu = new FormMenu(*menuBar_, window_);
    menus_[&title] = menu;
    menu->setToolTipsVisible(true);
    bindings_.push_back(BindItem(title, *menu->menuAction()));
    for (MenuItem* item : title.Items) {
        if (!item->Items.empty()) {
            menu->addMenu(BuildMenu(*item));
        } else {
            auto* action = new QAction(window_);
            menu->addAction(action);
            bindings_.push_back(BindItem(*item, *action));
        }
    }
    return menu;
}

// The captions of a box's menus mark no letters, so they get some here.
void FormWindow::MarkMenus() {
    if (menuBar_ != nullptr) AddMnemonics(menuBar_->actions());
    for (const auto& [title, menu] : menus_) AddMnemonics(menu->actions());
}

QMenu* FormWindow::MenuOf(const MenuItem& item) const {
    const auto found = menus_.find(&item);
    return found == menus_.end() ? nullptr : found->second;
}

// --- showing

// winId() would make a native window of each menu of the parent as well, and so a window of its own
// for assistive tools.
void FormWindow::StandInFrontOf(QWidget& below) {
    below_ = &below;
    static_cast<FormDialogue&>(*window_).create();
    window_->windowHandle()->setTransientParent(below.windowHandle());
}

void FormWindow::Show(bool modal) {
    // What takes all input needs the others' windows to get theirs.
    const bool blocks = modal && !form_.TakesAllInput;
    modal_ = modal;
    window_->setWindowModality(blocks ? Qt::WindowModal : Qt::NonModal);
    Sync();
    // Where it stood; a window manager that is told nothing moves it on by its frame.
    if (std::exchange(shownBefore_, true) && !window_->isVisible()) window_->move(window_->pos());
    // A window that appears gives the focus back to what had it last.
    if (QWidget* last = window_->focusWidget()) last->clearFocus();
    window_->show();
    window_->raise();
    window_->activateWindow();
    if (form_.ActiveControl == nullptr) FocusFirst();
    if (form_.TakesAllInput) catcher_ = std::make_unique<InputCatcher>(form_);
}

void FormWindow::FocusFirst() {
    for (const Control* control : form_.Controls) {
        QWidget* widget = WidgetOf(*control);
        if (widget == nullptr || !control->Visible || !control->Enabled) continue;
        if (widget->focusPolicy() == Qt::NoFocus) continue;
        widget->setFocus();
        return;
    }
}

void FormWindow::Hide() {
    catcher_.reset();
    modal_ = false;
    window_->hide();
    // Where no window manager does it, the keyboard would be nobody's.
    if (below_ && !Ending()) below_->activateWindow();
}

// --- between controls and widgets

void FormWindow::Pull() {
    for (const Binding& binding : bindings_) {
        if (binding.pull) binding.pull();
    }
}

void FormWindow::Sync() {
    SetTitle(*window_, form_.Caption);
    // What is hidden or disabled here passes the focus on, which is nobody's wish if the logic has
    // given it to another control.
    Control* focus = form_.ActiveControl;
    for (const Binding& binding : bindings_) {
        if (binding.sync) binding.sync();
    }
    const QWidget* widget = focus == nullptr ? nullptr : WidgetOf(*focus);
    if (widget != nullptr && focus->Visible && focus->Enabled) form_.ActiveControl = focus;
    if (window_->isEnabled() != form_.Enabled) window_->setEnabled(form_.Enabled);
    const bool busy = form_.MousePointer == Pointer::Hourglass;
    if (busy && window_->cursor().shape() != Qt::WaitCursor) window_->setCursor(Qt::WaitCursor);
    if (!busy && window_->testAttribute(Qt::WA_SetCursor)) window_->unsetCursor();
    SyncFocus();
    // A box that is asked in stays until its answer counts.
    if (!modal_ && !form_.Visible && window_->isVisible()) window_->hide();
}

void FormWindow::SyncFocus() {
    MarkDefault();
    if (form_.ActiveControl == nullptr) return;
    QWidget* widget = WidgetOf(*form_.ActiveControl);
    if (widget != nullptr && window_->focusWidget() != widget) widget->setFocus();
}

// The button that Enter presses: the one that has the focus, else the form's own.
void FormWindow::MarkDefault() {
    const auto pushButton = [this](const Control* control) {
        return control == nullptr ? nullptr : qobject_cast<QPushButton*>(WidgetOf(*control));
    };
    QPushButton* standard = pushButton(form_.ActiveControl);
    if (standard == nullptr) standard = pushButton(form_.DefaultButton);
    for (const auto& [widget, control] : controls_) {
        auto* button = qobject_cast<QPushButton*>(widget);
        if (button != nullptr) button->setDefault(button == standard);
    }
}

QWidget* FormWindow::WidgetOf(const Control& control) const {
    for (const Binding& binding : bindings_) {
        if (binding.control == &control) return binding.widget;
    }
    return nullptr;
}

// In the order of the form; a line that only tells something comes behind all that does something.
void FormWindow::SetTabOrder() {
    std::vector<QWidget*> order;
    for (const Control* control : form_.Controls) {
        QWidget* widget = WidgetOf(*control);
        if (widget != nullptr && widget->focusPolicy() != Qt::NoFocus) order.push_back(widget);
    }
    std::stable_partition(order.begin(), order.end(), [](const QWidget* widget) {
        return dynamic_cast<const StatusView*>(widget) == nullptr;
    });
    for (std::size_t i = 1; i < order.size(); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

bool FormWindow::OpenFirstMenu() {
    if (menuBar_ == nullptr) return false;
    QAction* title = menuBar_->actions().constFirst();
    menuBar_->setActiveAction(title);
    const QList<QAction*> items = title->menu()->actions();
    const auto first = std::find_if(items.begin(), items.end(),
                                    [](const QAction* item) { return item->isEnabled(); });
    if (first != items.end()) title->menu()->setActiveAction(*first);
    return true;
}

// --- events of all widgets

// A double click, or a key held down on a slow machine, has a second press that comes when the
// first has closed the window: it is for nobody.
bool FormWindow::ComesTooLate(const QEvent& event) const {
    const bool isPress = event.type() == QEvent::KeyPress ||
                         event.type() == QEvent::MouseButtonPress ||
                         event.type() == QEvent::MouseButtonDblClick;
    return isPress && !window_->isVisible();
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
    if (ComesTooLate(*event)) return true;
    const auto found = controls_.find(watched);
    if (event->type() == QEvent::FocusIn && found != controls_.end()) {
        form_.ActiveControl = found->second;
        MarkDefault();
    }
    if (event->type() == QEvent::WindowActivate && watched == window_) WindowCameToFront(*window_);
    if (event->type() == QEvent::KeyPress) {
        return KeyPressed(watched, *static_cast<QKeyEvent*>(event));
    }
    return QObject::eventFilter(watched, event);
}

// A key goes to the form and the control that has the focus before the widget sees it. One that the
// widget leaves alone comes by a second time, at the window.
bool FormWindow::KeyPressed(QObject* watched, QKeyEvent& event) {
    // Esc held down takes back one thing, not one after the other to the end of the program.
    if (event.key() == Qt::Key_Escape && IsRepeated(event)) return true;
    const auto found = controls_.find(watched);
    if (found == controls_.end() && window_->focusWidget() != nullptr) return false;
    Control* focus = found == controls_.end() ? nullptr : found->second;
    // F1 is for help, but where any key will do.
    if (focus != nullptr && event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier) {
        GiveHelp(form_, *focus);
        return true;
    }
    auto key = KeyOf(event);
    if (key && key->key == Key::Esc && window_ == MainWindow()) key->spent = EscIsSpent();
    if (key && DispatchKey(form_, focus, *key)) return true;
    if (event.key() == Qt::Key_F10 && event.modifiers() == Qt::NoModifier) return OpenFirstMenu();
    const bool enter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    auto* button = qobject_cast<QAbstractButton*>(watched);
    // Enter on a check box or an option is for the default button.
    if (!enter || button == nullptr || button->isCheckable()) return false;
    button->click();
    return true;
}

}  // namespace tessaryn
