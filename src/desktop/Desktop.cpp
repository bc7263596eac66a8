#include "desktop/Desktop.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <exception>
#include <map>
#include <string>

#include "desktop/FileDrop.h"
#include "desktop/FormWindow.h"
#include "desktop/HelpViewer.h"
#include "desktop/InputWatch.h"
#include "desktop/WindowPlace.h"

namespace tessaryn {

namespace {

struct DesktopState {
    std::map<const Form*, std::unique_ptr<FormWindow>> windows;
    FormWindow* main = nullptr;
    bool ending = false;
};

DesktopState& State() {
    static DesktopState state;
    return state;
}

void Present(Form& form, bool modal) {
    form.Show();
    QWidget* below = TopWindow();
    SyncWindows();
    FormWindow& window = WindowOf(form);
    if (below != nullptr && below != &window.Window()) window.StandInFrontOf(*below);
    window.Show(modal);
    form.Activated();
}

// Nothing that the logic throws gets past it.
void Guard(const EventHandler& event) {
    try {
        event();
    } catch (const std::exception& fault) {
        Beep(std::string("Something went wrong inside the program: ") + fault.what());
    } catch (...) {
        Beep("Something went wrong inside the program.");
    }
}

}  // namespace

// --- events

void Dispatch(const EventHandler& event) {
    if (Ending()) return;
    Guard([&] {
        for (const auto& [form, window] : State().windows) {
            if (form->Visible) window->Pull();
        }
        event();
    });
    Guard(SettleQuestions);
    SyncWindows();
}

bool DispatchKey(Form& form, Control* focus, const KeyEvent& key) {
    bool dealtWith = false;
    Dispatch([&] { dealtWith = SendKey(form, focus, key); });
    return dealtWith || Ending();
}

void SyncWindows() {
    for (const auto& [form, window] : State().windows) {
        if (form->Visible || window->Window().isVisible()) window->Sync();
    }
}

// --- windows

QWidget* TopWindow() {
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    return MainWindow();
}

FormWindow& WindowOf(Form& form) {
    auto& window = State().windows[&form];
    if (!window) window = std::make_unique<FormWindow>(form, WindowKind::Dialogue, MainWindow());
    return *window;
}

QWidget* WidgetOf(const Control& control) {
    const auto found = State().windows.find(&control.Parent);
    return found == State().windows.end() ? nullptr : found->second->WidgetOf(control);
}

QWidget* MainWindow() {
    return State().main != nullptr ? &State().main->Window() : nullptr;
}

void ShowMainWindow(Form& form) {
    ForgetWindows();
    auto window = std::make_unique<FormWindow>(form, WindowKind::Main, nullptr);
    State().main = window.get();
    State().windows[&form] = std::move(window);
    form.Visible = true;
    QWidget& shown = State().main->Window();
    // Where no window manager does it, maximising alone would leave the window small.
    shown.setGeometry(shown.screen()->availableGeometry());
    shown.setWindowState(Qt::WindowMaximized);
    TakeDroppedProofs(shown);
    State().main->Show(false);
    KeepPlaceOf(shown);
    QTimer::singleShot(0, &shown, [&form] { Dispatch([&form] { form.Activated(); }); });
}

void ForgetWindows() {
    ForgetManual();
    for (auto& [form, window] : State().windows) {
        if (window.get() != State().main) window.reset();
    }
    State() = {};
}

bool Ending() {
    return State().ending;
}

// --- what the logic calls

void PresentModal(Form& form) {
    Present(form, true);
    SyncWindows();
}

void TakeDown(Form& form) {
    WindowOf(form).Hide();
}

void ShowModeless(Form& form) {
    Present(form, false);
}

void RefreshNow(Form& form) {
    FormWindow& window = WindowOf(form);
    window.Sync();
    for (QWidget* widget : window.Window().findChildren<QWidget*>()) {
        if (widget->isVisible()) widget->repaint();
    }
}

void EndProgram() {
    State().ending = true;
    QCoreApplication::exit(0);
}

bool PointerBeyondRightEdge(const Control& box) {
    const QWidget* widget = WidgetOf(box);
    if (widget == nullptr) return false;
    if (const auto* area = qobject_cast<const QAbstractScrollArea*>(widget))
        widget = area->viewport();
    // The last column of pixels counts: at the screen's edge there is nothing beyond it.
    return QCursor::pos().x() >= widget->mapToGlobal(QPoint(widget->width() - 1, 0)).x();
}

void PopupMenu(MenuItem& menu) {
    const FormWindow& window = WindowOf(menu.Parent);
    if (QMenu* shown = window.MenuOf(menu)) shown->popup(PlaceOfInput());
}

}  // namespace tessaryn
