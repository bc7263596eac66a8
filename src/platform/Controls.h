// The controls of a form as the logic sees them: small records that a front end binds to.
//
// Logic reads and writes the fields; after each event the front end brings over what changed. What
// the user does reaches the logic through the std::function members; an empty one means that
// nothing listens. All texts are UTF-8, all positions 0-based bytes.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessaryn {

struct Form;

enum class Key {
    Char,
    Enter,
    Esc,
    Del,
    Insert,
    Backspace,
    Tab,
    Left,
    Right,
    Up,
    Down,
    Home,
    End,
    Function
};

struct KeyEvent {
    Key key = Key::Char;
    std::string text;  // the character of Key::Char; the letter as a capital where ctrl is set
    bool ctrl = false;
    bool shift = false;
    int number = 0;      // of Key::Function: 2 for F2
    bool spent = false;  // of Key::Esc: it has closed something on the screen already
};

using EventHandler = std::function<void()>;
// Returns true if the key has been dealt with, so that the control does nothing more with it.
using KeyHandler = std::function<bool(const KeyEvent&)>;

enum class MouseButton { Left, Right };
using MouseHandler = std::function<void(MouseButton)>;

struct Control {
    Control(Form& parent, std::string name);  // joins the form's controls, in tab order
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    // Gives this control the focus of its form.
    void SetFocus();

    Form& Parent;
    std::string Name;  // unique in the form; scripts use it
    bool Visible = true;
    bool Enabled = true;
};

struct Label : Control {
    Label(Form& parent, std::string name, std::string caption = "")
        : Control(parent, std::move(name)), Caption(std::move(caption)) {}
    std::string Caption;
};

struct Button : Control {
    Button(Form& parent, std::string name, std::string caption = "", std::string toolTip = "")
        : Control(parent, std::move(name)),
          Caption(std::move(caption)),
          ToolTip(std::move(toolTip)) {}
    std::string Caption;
    std::string ToolTip;
    EventHandler Click;
};

// A menu title (Items filled), an item, or a separator (Caption "-").
struct MenuItem : Control {
    MenuItem(Form& parent, std::string name, std::string caption = "", std::string shortcut = "")
        : Control(parent, std::move(name)),
          Caption(std::move(caption)),
          Shortcut(std::move(shortcut)) {}
    std::string Caption;   // "&" ahead of the mnemonic, "&&" for one "&"
    std::string Shortcut;  // "Ctrl+Z", "F2", or ""
    bool Literal = false;  // the caption stands as it is: no mnemonic, no columns
    bool Checkable = false;
    bool Checked = false;
    EventHandler Click;
    std::vector<MenuItem*> Items;  // what hangs under it, top to bottom
};

// A plain one-line box.
struct TextBox : Control {
    using Control::Control;
    std::string Text;
    int SelStart = 0;
    int SelLength = 0;
    int FontSize = 12;  // points
    EventHandler Change;
    KeyHandler KeyPress;
};

struct CheckBox : Control {
    CheckBox(Form& parent, std::string name, std::string caption = "")
        : Control(parent, std::move(name)), Caption(std::move(caption)) {}
    std::string Caption;
    bool Value = false;  // the front end flips it ahead of Click
    EventHandler Click;
};

// One of the choices of its group in the form, of which the front end keeps no more than one set.
struct OptionButton : Control {
    OptionButton(Form& parent, std::string name, std::string caption = "", int group = 0)
        : Control(parent, std::move(name)), Caption(std::move(caption)), Group(group) {}
    std::string Caption;
    int Group;
    bool Value = false;
    EventHandler Click;
};

// A list in which to go from directory to directory.
struct DirectoryBox : Control {
    using Control::Control;
    std::string Path;     // of the directory that it is at
    EventHandler Change;  // the user has gone to another one
};

// Ticks every Interval milliseconds while Enabled.
struct Timer : Control {
    Timer(Form& parent, std::string name) : Control(parent, std::move(name)) { Enabled = false; }
    int Interval = 20;
    EventHandler Tick;
};

}  // namespace tessaryn
