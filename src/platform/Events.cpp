#include "platform/Events.h"

#include "platform/Questions.h"

namespace tessaryn {

namespace {

bool TakeKey(Form& form, Control* focus, const KeyEvent& key) {
    if (form.KeyPressed(key)) return true;
    if (auto* box = dynamic_cast<RichTextBox*>(focus)) return box->KeyDown && box->KeyDown(key);
    if (auto* box = dynamic_cast<TextBox*>(focus)) return box->KeyPress && box->KeyPress(key);
    return false;
}

void Call(const EventHandler& handler) {
    if (handler) handler();
    SettleQuestions();
}

void ButtonUp(RichTextBox& box) {
    if (box.MouseUp) box.MouseUp(MouseButton::Left);
    SettleQuestions();
}

}  // namespace

bool SendKey(Form& form, Control* focus, const KeyEvent& key) {
    const bool taken = TakeKey(form, focus, key);
    SettleQuestions();
    return taken;
}

void SendRelease(RichTextBox& box) {
    Call(box.Click);
    ButtonUp(box);
}

void SendClick(RichTextBox& box, int start, int length) {
    box.SelStart = start;
    if (length > 0) box.SelLength = length;
    SendRelease(box);
}

void SendDoubleClick(RichTextBox& box, int start) {
    const int formsShown = FormsShown;
    box.SelStart = start;
    Call(box.Click);
    if (FormsShown != formsShown) return;
    Call(box.DblClick);
    ButtonUp(box);
}

void SendPaste(RichTextBox& box, const Clip& content) {
    if (box.ReadOnly || !box.Pasted) return;
    box.Pasted(content);
    Call(box.Change);
}

bool SendChoose(Control& control) {
    if (!control.Visible || !control.Enabled) return false;
    EventHandler handler;
    if (auto* button = dynamic_cast<Button*>(&control)) handler = button->Click;
    if (auto* item = dynamic_cast<MenuItem*>(&control)) handler = item->Click;
    if (auto* check = dynamic_cast<CheckBox*>(&control)) {
        check->Value = !check->Value;
        handler = check->Click ? check->Click : [] {};
    }
    if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        for (Control* other : option->Parent.Controls) {
            auto* rival = dynamic_cast<OptionButton*>(other);
            if (rival != nullptr && rival->Group == option->Group) rival->Value = rival == option;
        }
        handler = option->Click ? option->Click : [] {};
    }
    if (!handler) return false;
    Call(handler);
    return true;
}

}  // namespace tessaryn
