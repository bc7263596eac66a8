#include "platform/Events.h"

namespace tessaryn {

bool SendKey(Form& form, Control* focus, const KeyEvent& key) {
    if (form.KeyPressed(key)) return true;
    if (auto* box = dynamic_cast<RichTextBox*>(focus)) return box->KeyDown && box->KeyDown(key);
    if (auto* box = dynamic_cast<TextBox*>(focus)) return box->KeyPress && box->KeyPress(key);
    return false;
}

void SendRelease(RichTextBox& box) {
    if (box.Click) box.Click();
    if (box.MouseUp) box.MouseUp(MouseButton::Left);
}

void SendClick(RichTextBox& box, int start, int length) {
    box.SelStart = start;
    if (length > 0) box.SelLength = length;
    SendRelease(box);
}

void SendDoubleClick(RichTextBox& box, int start) {
    const int formsShown = FormsShown;
    box.SelStart = start;
    if (box.Click) box.Click();
    if (FormsShown != formsShown) return;
    if (box.DblClick) box.DblClick();
    if (box.MouseUp) box.MouseUp(MouseButton::Left);
}

void SendPaste(RichTextBox& box, const Clip& content) {
    if (box.ReadOnly || !box.Pasted) return;
    box.Pasted(content);
    if (box.Change) box.Change();
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
    handler();
    return true;
}

}  // namespace tessaryn
