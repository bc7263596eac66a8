#include "cli/Keyboard.h"

#include <algorithm>

#include "cli/FormState.h"
#include "menu/HelpHere.h"
#include "output/Help.h"
#include "platform/Events.h"
#include "platform/Platform.h"
#include "text/TextSteps.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

KeyEvent PlainKey(Key which) {
    KeyEvent key;
    key.key = which;
    return key;
}

bool TakesFocus(const Control& control) {
    if (!control.Visible || !control.Enabled) return false;
    return dynamic_cast<const RichTextBox*>(&control) != nullptr ||
           dynamic_cast<const TextBox*>(&control) != nullptr ||
           dynamic_cast<const Button*>(&control) != nullptr ||
           dynamic_cast<const CheckBox*>(&control) != nullptr ||
           dynamic_cast<const DirectoryBox*>(&control) != nullptr ||
           dynamic_cast<const OptionButton*>(&control) != nullptr;
}

std::string ShortcutName(const KeyEvent& key) {
    if (key.key == Key::Function) return "F" + std::to_string(key.number);
    if (key.key == Key::Char && key.ctrl) return "Ctrl+" + key.text;
    return "";
}

bool PressShortcut(Form& form, const KeyEvent& key) {
    const std::string shortcut = ShortcutName(key);
    if (shortcut.empty()) return false;
    for (Control* control : form.Controls) {
        auto* item = dynamic_cast<MenuItem*>(control);
        if (item != nullptr && item->Shortcut == shortcut && CanReach(*item)) {
            return SendChoose(*item);
        }
    }
    return false;
}

// True if the text has become another, as in those that follow.
bool ReplaceSelection(TextBox& box, const std::string& entered) {
    const std::string text = TakenInOnOneLine(entered);
    const auto start = static_cast<std::size_t>(box.SelStart);
    const auto length = static_cast<std::size_t>(box.SelLength);
    const bool differs = box.Text.compare(start, length, text) != 0;
    box.Text.replace(start, length, text);
    box.SelStart += static_cast<int>(text.size());
    box.SelLength = 0;
    return differs;
}

void Select(TextBox& box, int start, int end) {
    box.SelStart = start;
    box.SelLength = end - start;
}

// The selection, or else the character ahead of or behind the caret.
bool Delete(TextBox& box, bool forward) {
    if (box.SelLength == 0) {
        const int caret = box.SelStart;
        const int length = static_cast<int>(box.Text.size());
        if (forward && caret < length) Select(box, caret, StepEnd(box.Text, caret));
        if (!forward && caret > 0) Select(box, StepStart(box.Text, caret - 1), caret);
    }
    return ReplaceSelection(box, "");
}

std::string Selected(const TextBox& box) {
    return box.Text.substr(static_cast<std::size_t>(box.SelStart),
                           static_cast<std::size_t>(box.SelLength));
}

bool EditByCtrlKey(TextBox& box, const std::string& letter) {
    if (letter == "A") Select(box, 0, static_cast<int>(box.Text.size()));
    if ((letter == "C" || letter == "X") && box.SelLength > 0)
        SetClipboard(TextAlone(Selected(box)));
    if (letter == "X") return ReplaceSelection(box, "");
    return letter == "V" && ReplaceSelection(box, ClipboardContent().plain);
}

// Programs may have shortened the text under the selection.
void LimitSelection(TextBox& box) {
    const int length = static_cast<int>(box.Text.size());
    box.SelStart = std::clamp(box.SelStart, 0, length);
    box.SelLength = std::clamp(box.SelLength, 0, length - box.SelStart);
}

void MoveCaret(TextBox& box, Key key) {
    const int length = static_cast<int>(box.Text.size());
    const int caret = box.SelStart;
    if (key == Key::Left && caret > 0) box.SelStart = StepStart(box.Text, caret - 1);
    if (key == Key::Right && caret < length) box.SelStart = StepEnd(box.Text, caret);
    if (key == Key::Home) box.SelStart = 0;
    if (key == Key::End) box.SelStart = length;
    box.SelLength = 0;
}

bool ChangedBy(const KeyEvent& key, TextBox& box) {
    if (key.key == Key::Char && key.ctrl) return EditByCtrlKey(box, key.text);
    if (key.key == Key::Char) return ReplaceSelection(box, key.text);
    if (key.key == Key::Del || key.key == Key::Backspace) return Delete(box, key.key == Key::Del);
    MoveCaret(box, key.key);
    return false;
}

void Edit(TextBox& box, const KeyEvent& key) {
    LimitSelection(box);
    if (ChangedBy(key, box) && box.Change) box.Change();
}

void SelectAll(Control& box) {
    if (auto* plain = dynamic_cast<TextBox*>(&box)) {
        Select(*plain, 0, static_cast<int>(plain->Text.size()));
    }
    if (auto* rich = dynamic_cast<RichTextBox*>(&box)) {
        rich->SelStart = 0;
        rich->SelLength = rich->TextLength();
    }
}

// The editing of a box whose form has no commands of its own for it.
void EditByCtrlKey(RichTextBox& box, const std::string& letter) {
    if (letter == "A") SelectAll(box);
    if (letter == "V") return SendPaste(box, ClipboardContent());
    if ((letter != "C" && letter != "X") || box.SelLength == 0) return;
    SetClipboard(SelectionOf(box));
    if (letter == "C") return;
    box.SelText = "";
    if (box.Change) box.Change();
}

void Edit(RichTextBox& box, const KeyEvent& key) {
    if (box.ReadOnly) return;
    if (key.key == Key::Char && key.ctrl) return EditByCtrlKey(box, key.text);
    const auto revision = box.ContentRevision();
    if (key.key == Key::Char) box.TypeText(key.text);
    if (key.key == Key::Enter) box.TypeText("\r\n");
    if (key.key == Key::Del) box.DeleteForward();
    if (key.key == Key::Backspace) box.DeleteBackward();
    if (box.ContentRevision() != revision && box.Change) box.Change();
}

bool TakesEnter(const Control* focus) {
    const auto* box = dynamic_cast<const RichTextBox*>(focus);
    return box != nullptr && box->MultiLine && !box->ReadOnly;
}

// Enter where no box takes it: the button that has the focus, else the form's default.
void PressButton(Form& form, Control* focus) {
    auto* button = dynamic_cast<Button*>(focus);
    if (button == nullptr) button = form.DefaultButton;
    if (button != nullptr) SendChoose(*button);
}

void GiveHelp(const Help& help) {
    if (help.note.empty()) {
        ShowManual(help.page);
    } else {
        Tell(help.note);
    }
}

// A handler may leave text behind the caret ("e " for a typed "@" in a comment). Where the whole
// content is being replaced there must be none. What is typed next keeps its format.
void CutBehindCaret(RichTextBox& box) {
    const int caret = box.SelStart;
    if (caret >= box.TextLength()) return;
    const CharFormat format = box.InsertionFormat();
    box.SelLength = box.TextLength() - caret;
    box.SelText = std::string();
    box.SelFontName = format.Font;
    box.SelFontSize = format.Size;
    box.SelColor = format.Color;
    box.SelBold = format.Bold;
}

void PutCaretAtEnd(Control& box) {
    if (auto* plain = dynamic_cast<TextBox*>(&box)) {
        plain->SelStart = static_cast<int>(plain->Text.size());
        plain->SelLength = 0;
    }
    if (auto* rich = dynamic_cast<RichTextBox*>(&box)) rich->SelStart = rich->TextLength();
}

}  // namespace

Control* FocusOf(const Form& form) {
    if (form.ActiveControl != nullptr) return form.ActiveControl;
    auto first = std::find_if(form.Controls.begin(), form.Controls.end(),
                              [](const Control* control) { return TakesFocus(*control); });
    return first == form.Controls.end() ? nullptr : *first;
}

KeyEvent TakeKey(const std::string& text, std::size_t& at) {
    const std::size_t start = at;
    at = static_cast<std::size_t>(StepEnd(text, static_cast<int>(start)));
    if (text[start] == '\r' || text[start] == '\n') return PlainKey(Key::Enter);
    if (text[start] == '\t') return PlainKey(Key::Tab);
    KeyEvent key;
    key.text = text.substr(start, at - start);
    return key;
}

bool KeyFromName(const std::string& name, KeyEvent& key) {
    key = {};
    if (name == "Esc") key.key = Key::Esc;
    if (name == "Enter") key.key = Key::Enter;
    if (name == "Del") key.key = Key::Del;
    for (int number = 1; number <= 12; ++number) {
        if (name != "F" + std::to_string(number)) continue;
        key.key = Key::Function;
        key.number = number;
    }
    if (name.size() == 6 && name.starts_with("Ctrl+") && name[5] >= 'A' && name[5] <= 'Z') {
        key.ctrl = true;
        key.text = name.substr(5);
    }
    return key.key != Key::Char || key.ctrl;
}

void PressKey(Form& form, const KeyEvent& key) {
    if (PressShortcut(form, key)) return;
    Control* focus = FocusOf(form);
    if (key.key == Key::Function && key.number == 1 && focus != nullptr) {
        return GiveHelp(HelpHere(form, focus));
    }
    if (SendKey(form, focus, key)) return;
    if (key.key == Key::Enter && !TakesEnter(focus)) {
        PressButton(form, focus);
    } else if (auto* plain = dynamic_cast<TextBox*>(focus)) {
        Edit(*plain, key);
    } else if (auto* rich = dynamic_cast<RichTextBox*>(focus)) {
        Edit(*rich, key);
    }
}

void ReplaceByTyping(Control& box, const std::string& text) {
    auto* rich = dynamic_cast<RichTextBox*>(&box);
    const bool oneLine = rich == nullptr || !rich->MultiLine;
    const std::string wanted = oneLine ? TakenInOnOneLine(text) : WithCrLf(text);
    box.SetFocus();
    if (ControlText(box) != wanted) {
        SelectAll(box);
        if (wanted.empty()) PressKey(box.Parent, PlainKey(Key::Del));
        for (std::size_t at = 0; at < wanted.size();) {
            PressKey(box.Parent, TakeKey(wanted, at));
            if (rich != nullptr) CutBehindCaret(*rich);
        }
    }
    PutCaretAtEnd(box);
}

}  // namespace tessaryn
