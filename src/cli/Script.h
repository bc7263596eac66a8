// What the parts of the script runner share: the run under way, the words of a line, and how an
// action says that it can't be done.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Form.h"

namespace tessaryn {

// Thrown by an action. The runner catches it before it could reach the program's own code.
struct ActionFailed {
    std::string reason;
};

struct ScriptRun {
    explicit ScriptRun(std::ostream& output) : out(output) {}

    std::istream* in = nullptr;  // where the lines come from
    std::ostream& out;
    std::function<void()> acted;  // called behind each action
    std::string text;             // the line last begun
    bool again = false;           // its turn is still to come
    std::size_t line = 0;         // number of the line last begun, 1-based; 0 ahead of the first
    std::string typing;           // the text of a `type`
    std::size_t typed = 0;        // bytes of it whose keys have been pressed
    bool checkDocument = false;   // after each action
    bool checkLines = false;
    std::string checked;  // the bytes of the document that was checked last
    std::string failure;  // "" as long as all is well; then the run is over

    // How many beeps and messages there were when the last action that was no `expect` began, and
    // at the last `dump`.
    std::size_t beepsBefore = 0;
    std::size_t messagesBefore = 0;
    std::size_t beepsDumped = 0;
    std::size_t messagesDumped = 0;
};

// The words of one line: bare words, numbers and strings in double quotes. What isn't there, or has
// another shape, fails the action.
class Arguments {
  public:
    explicit Arguments(std::string_view line) : rest_(line) { SkipBlanks(); }

    bool Empty() const { return rest_.empty(); }
    bool TextFollows() const { return rest_.starts_with('"'); }

    std::string Word();
    std::string Text();
    std::string Path();
    int Number();
    bool Take(std::string_view word);  // takes the next word if it is this one
    void End() const;                  // nothing may follow

  private:
    void SkipBlanks();
    std::string_view NextWord() const;

    std::string_view rest_;
};

using Action = void (*)(ScriptRun&, Arguments&);

struct ActionRow {
    const char* name;
    Action action;
};

// The row's action, nullptr if the table has no such name.
template <class Table>
Action FindAction(const Table& table, std::string_view name) {
    for (const ActionRow& row : table) {
        if (row.name == name) return row.action;
    }
    return nullptr;
}

Action FindScriptAction(std::string_view name);
std::string NoAction(std::string_view name);  // that there is none of that name
void Expect(ScriptRun& run, Arguments& arguments);

// The control of that name in the form on top, or in the main window while the form on top leaves
// that open to the user.
Control& FindControl(const std::string& name);

// A string as a script would write it.
std::string Quoted(const std::string& text);

}  // namespace tessaryn
