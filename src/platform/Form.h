// A form: a window or dialogue with its controls as named members.
//
// A form derives from Form, lists its controls as members (their order is the tab order) and
// overrides the events that it handles. Forms live as long as the program and are hidden, not
// destroyed.
#pragma once

#include <string>
#include <vector>

#include "platform/Controls.h"

namespace tessaryn {

enum class Pointer { Default, Hourglass };

inline int FormsShown = 0;  // calls of Form::Show since the start

struct Form {
    explicit Form(std::string name, std::string caption = "");
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    // Each time the form has been shown, before the user can do anything.
    virtual void Activated() {}
    // A key, ahead of the control that has the focus. True: dealt with. Esc closes the form as its
    // frame does, unless a form has its own use for that key.
    virtual bool KeyPressed(const KeyEvent& key);
    // A click anywhere, in a form that takes all input.
    virtual void Clicked() {}
    // The user closes the window. A form that stays open leaves Visible set.
    virtual void Close() { Hide(); }

    // Each showing starts with the form's own first focus, wherever an earlier one ended.
    void Show();
    void Hide() { Visible = false; }

    // The control of that name, nullptr if there is none.
    Control* Find(const std::string& name) const;

    std::string Name;
    std::string Caption;
    bool Visible = false;
    bool Enabled = true;
    bool TakesAllInput = false;  // clicks and keys anywhere in the program, while it is shown
    Pointer MousePointer = Pointer::Default;
    std::vector<Control*> Controls;    // all of them, in tab order
    std::vector<MenuItem*> MenuBar;    // its menu titles, left to right
    Control* ActiveControl = nullptr;  // has the focus; nullptr: the first that can take it
    Button* DefaultButton = nullptr;   // pressed by Enter where no box takes that key
};

// Puts a form back into the state in which it was made.
template <class SomeForm>
void Restart(SomeForm& form) {
    form.~SomeForm();
    new (&form) SomeForm();
}

}  // namespace tessaryn
