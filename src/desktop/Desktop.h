// The windows that stand for the forms, and the way of an event from Qt into the logic.
#pragma once

#include <functional>
#include <memory>

#include "platform/Events.h"
#include "platform/Platform.h"

class QWidget;

namespace tessaryn {

class FormWindow;

// Lets the logic deal with something that the user did: takes over what stands in the editing
// boxes, runs the event, and brings over to all windows what it changed. Nothing that the event
// throws gets past it.
void Dispatch(const EventHandler& event);
// The same for a key; true if the logic has dealt with it.
bool DispatchKey(Form& form, Control* focus, const KeyEvent& key);

// Brings over to all windows what the logic has set.
void SyncWindows();

// The window of a form, made when it is first asked for.
FormWindow& WindowOf(Form& form);
// What stands for a control on the screen; nullptr if nothing does.
QWidget* WidgetOf(const Control& control);

QWidget* MainWindow();  // nullptr while there is none
// What a new window stands in front of: the box that is waited for, else the main window; nullptr
// if there is neither. Never the manual, which holds up nothing and is held up by nothing.
QWidget* TopWindow();

// Shows the main window and runs its first activation from the event loop.
void ShowMainWindow(Form& form);
// Brings the windows to an end, so that forms can be built anew.
void ForgetWindows();

// Runs `work` on another thread, which throws nothing, and then, as an event, `then` with what it
// gave. Both are destroyed here.
void RunBeside(std::function<std::string()> work, std::function<void(const std::string&)> then);

// EndProgram has been called.
bool Ending();

}  // namespace tessaryn
