// What `expect` can look at.
#include <algorithm>
#include <array>

#include "cli/FormState.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Script.h"
#include "cli/ScriptTargets.h"
#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "text/Encoding.h"
#include "view/TextExchange.h"

namespace tessaryn {

namespace {

void RequireText(const std::string& what, const std::string& wanted, const std::string& found) {
    if (wanted != found) {
        throw ActionFailed{what + " is " + Quoted(found) + ", expected " + Quoted(wanted)};
    }
}

void RequireNumber(const std::string& what, int wanted, int found) {
    if (wanted == found) return;
    throw ActionFailed{what + " is " + std::to_string(found) + ", expected " +
                       std::to_string(wanted)};
}

int TakeLine(Arguments& arguments) {
    const int line = arguments.Number();
    RequireLine(line);
    return line;
}

std::string TakeText(Arguments& arguments) {
    std::string text = arguments.Text();
    arguments.End();
    return text;
}

int TakeNumber(Arguments& arguments) {
    const int number = arguments.Number();
    arguments.End();
    return number;
}

void ExpectLine(ScriptRun&, Arguments& arguments) {
    const int line = TakeLine(arguments);
    const std::string wanted = WithElementSign(TakeText(arguments));
    RequireText("line " + std::to_string(line), wanted, ToUtf8(StmtText(line)));
}

void ExpectRule(ScriptRun&, Arguments& arguments) {
    const int line = TakeLine(arguments);
    const std::string wanted = TakeText(arguments);
    const Statement& stmt = StmtTable[line];
    const std::string found(ProofSlice(stmt.StartRule, stmt.EndRule));
    RequireText("the rule of line " + std::to_string(line), wanted, ToUtf8(found));
}

void ExpectCount(ScriptRun&, Arguments& arguments) {
    RequireNumber("the number of lines", TakeNumber(arguments), StmtCount);
}

void ExpectMode(ScriptRun&, Arguments& arguments) {
    RequireNumber("the mode", TakeNumber(arguments), RuleMode);
}

void ExpectStatus(ScriptRun&, Arguments& arguments) {
    RequireText("the status line", TakeText(arguments), BoxText(Proof.StatusLine));
}

void ExpectTitle(ScriptRun&, Arguments& arguments) {
    RequireText("the title", TakeText(arguments), Proof.Caption);
}

void ExpectForm(ScriptRun&, Arguments& arguments) {
    const std::string name = arguments.Word();
    arguments.End();
    const Form& top = TopForm();
    if (top.Name == name) return;
    const std::string found = &top == &Proof ? "no form is open" : top.Name + " is open";
    throw ActionFailed{found + ", expected " + name};
}

void ExpectControl(ScriptRun&, Arguments& arguments) {
    const std::string name = arguments.Word();
    const std::string wanted = TakeText(arguments);
    RequireText(name, wanted, ControlText(FindControl(name)));
}

void ExpectBeep(ScriptRun& run, Arguments& arguments) {
    arguments.End();
    if (Headless.Beeps.size() == run.beepsBefore) throw ActionFailed{"expected a beep"};
}

void ExpectMessage(ScriptRun& run, Arguments& arguments) {
    const std::string wanted = TakeText(arguments);
    const auto begin = Headless.Messages.begin() + static_cast<std::ptrdiff_t>(run.messagesBefore);
    if (begin == Headless.Messages.end()) {
        throw ActionFailed{"no message box was shown, expected " + Quoted(wanted)};
    }
    if (std::any_of(begin, Headless.Messages.end(),
                    [&](const MessageShown& message) { return message.text == wanted; })) {
        return;
    }
    RequireText("the message", wanted, Headless.Messages.back().text);
}

// The last note so far that came without a beep.
void ExpectNote(ScriptRun&, Arguments& arguments) {
    const std::string wanted = TakeText(arguments);
    RequireText("the note", wanted, Headless.Notes.empty() ? "" : Headless.Notes.back());
}

// The page of the manual, or the address, that was opened last.
void ExpectPage(ScriptRun&, Arguments& arguments) {
    const std::string wanted = TakeText(arguments);
    RequireText("the page", wanted,
                Headless.PagesOpened.empty() ? "" : Headless.PagesOpened.back());
}

void ExpectNo(ScriptRun& run, Arguments& arguments) {
    const std::string what = arguments.Word();
    arguments.End();
    if (what == "form") {
        if (&TopForm() != &Proof) throw ActionFailed{TopForm().Name + " is open"};
    } else if (what == "beep") {
        if (Headless.Beeps.size() > run.beepsBefore) throw ActionFailed{"there was a beep"};
    } else if (what == "message") {
        if (Headless.Messages.size() > run.messagesBefore) {
            throw ActionFailed{"a message box was shown: " + Quoted(Headless.Messages.back().text)};
        }
    } else {
        throw ActionFailed{"can't expect no " + what};
    }
}

constexpr std::array Expectations = std::to_array<ActionRow>({
    {"line", ExpectLine},
    {"rule", ExpectRule},
    {"count", ExpectCount},
    {"mode", ExpectMode},
    {"status", ExpectStatus},
    {"title", ExpectTitle},
    {"form", ExpectForm},
    {"control", ExpectControl},
    {"beep", ExpectBeep},
    {"message", ExpectMessage},
    {"note", ExpectNote},
    {"page", ExpectPage},
    {"no", ExpectNo},
});

}  // namespace

void Expect(ScriptRun& run, Arguments& arguments) {
    const std::string what = arguments.Word();
    const Action expectation = FindAction(Expectations, what);
    if (expectation == nullptr) throw ActionFailed{"can't expect " + what};
    expectation(run, arguments);
}

}  // namespace tessaryn
