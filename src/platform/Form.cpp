#include "platform/Form.h"

#include <algorithm>
#include <utility>

namespace tessaryn {

Form::Form(std::string name, std::string caption)
    : Name(std::move(name)), Caption(std::move(caption)) {}

bool Form::KeyPressed(const KeyEvent& key) {
    if (key.key != Key::Esc) return false;
    Close();
    return true;
}

void Form::Show() {
    ++FormsShown;
    Visible = true;
    ActiveControl = nullptr;
}

Control* Form::Find(const std::string& name) const {
    auto found = std::find_if(Controls.begin(), Controls.end(),
                              [&](const Control* control) { return control->Name == name; });
    return found == Controls.end() ? nullptr : *found;
}

Control::Control(Form& parent, std::string name) : Parent(parent), Name(std::move(name)) {
    parent.Controls.push_back(this);
}

void Control::SetFocus() {
    Parent.ActiveControl = this;
}

}  // namespace tessaryn
