// The actions of a script by name. Each takes its arguments, checks that a user could do it now,
// and sends the program what a user's hand would.
#include <algorithm>
#include <array>
#include <filesystem>
#include <ostream>

#include "cli/FormState.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Keyboard.h"
#include "cli/Nearest.h"
#include "cli/Script.h"
#include "cli/ScriptTargets.h"
#include "cli/StateDump.h"
#include "mainwindow/Proof.h"
#include "platform/Events.h"

namespace tessaryn {

namespace {

bool HasCommand(const Control& control) {
    if (const auto* button = dynamic_cast<const Button*>(&control)) return bool(button->Click);
    if (const auto* item = dynamic_cast<const MenuItem*>(&control)) return bool(item->Click);
    return dynamic_cast<const CheckBox*>(&control) != nullptr ||
           dynamic_cast<const OptionButton*>(&control) != nullptr;
}

Control& ChoosableControl(const std::string& name) {
    Control& control = FindControl(name);
    if (!control.Parent.Enabled) throw ActionFailed{control.Parent.Name + " is disabled"};
    if (!HasCommand(control)) throw ActionFailed{"there is no command behind " + name};
    if (!CanReach(control)) throw ActionFailed{name + " is hidden or disabled"};
    return control;
}

// The display, if no form keeps the user from it.
RichTextBox& ReachableDisplay() {
    if (ModalFormOpen()) {
        throw ActionFailed{"the proof can't be clicked while " + TopForm().Name + " is open"};
    }
    return Proof.RTB;
}

Control& EditableBox(const std::string& name) {
    Control& control = FindControl(name);
    const auto* rich = dynamic_cast<RichTextBox*>(&control);
    if (rich == nullptr && dynamic_cast<TextBox*>(&control) == nullptr &&
        dynamic_cast<DirectoryBox*>(&control) == nullptr) {
        throw ActionFailed{name + " is no box"};
    }
    if (!CanReach(control)) throw ActionFailed{name + " is hidden or disabled"};
    if (rich != nullptr && rich->ReadOnly) throw ActionFailed{name + " can't be edited"};
    return control;
}

void Choose(ScriptRun&, Arguments& arguments) {
    const std::string name = arguments.Word();
    arguments.End();
    SendChoose(ChoosableControl(name));
}

// The keys are pressed one by one in the steps that follow, so that each goes to what is on top by
// then.
void Type(ScriptRun& run, Arguments& arguments) {
    const std::string text = arguments.Text();
    arguments.End();
    if (FocusOf(TopForm()) == nullptr) throw ActionFailed{"no box has the focus"};
    run.typing = text;
    run.typed = 0;
}

void GoTo(DirectoryBox& list, const std::string& directory) {
    if (Headless.NoFiles) throw ActionFailed{NoFilesHere};
    std::error_code error;
    if (!std::filesystem::is_directory(directory, error)) {
        throw ActionFailed{"there is no directory " + directory};
    }
    list.SetFocus();
    list.Path = directory;
    if (list.Change) list.Change();
}

void Set(ScriptRun&, Arguments& arguments) {
    const std::string name = arguments.Word();
    const std::string text = arguments.Text();
    arguments.End();
    Control& box = EditableBox(name);
    if (auto* list = dynamic_cast<DirectoryBox*>(&box)) return GoTo(*list, text);
    ReplaceByTyping(box, text);
}

void PressNamedKey(ScriptRun&, Arguments& arguments) {
    const std::string name = arguments.Word();
    arguments.End();
    KeyEvent key;
    if (!KeyFromName(name, key)) throw ActionFailed{"there is no key " + name};
    PressKey(TopForm(), key);
}

void Click(ScriptRun&, Arguments& arguments) {
    RichTextBox& display = ReachableDisplay();
    SendClick(display, ClickTarget(arguments));
}

void DoubleClick(ScriptRun&, Arguments& arguments) {
    RichTextBox& display = ReachableDisplay();
    SendDoubleClick(display, ClickTarget(arguments));
}

void SelectText(ScriptRun&, Arguments& arguments) {
    RichTextBox& display = ReachableDisplay();
    const Place place = SelectTarget(arguments);
    SendClick(display, place.start, place.length);
}

void Pick(ScriptRun&, Arguments& arguments) {
    Form& form = TopForm();
    auto* box = dynamic_cast<RichTextBox*>(form.Find("RTB"));
    if (&form == &Proof || box == nullptr || !box->Click) {
        throw ActionFailed{"no dialogue with a statement to pick from is open"};
    }
    SendClick(*box, PickTarget(*box, arguments));
}

void QueueAnswer(ScriptRun&, Arguments& arguments) {
    const std::string word = arguments.Word();
    arguments.End();
    for (const Answer answer : {Answer::OK, Answer::Yes, Answer::No, Answer::Cancel}) {
        if (word != AnswerName(answer)) continue;
        Headless.Answers.push_back(answer);
        return;
    }
    throw ActionFailed{"an answer is Yes, No, Cancel or OK, not " + word};
}

void QueueFile(ScriptRun&, Arguments& arguments) {
    if (arguments.Take("cancel")) {
        Headless.Files.push_back(std::nullopt);
    } else {
        Headless.Files.push_back(arguments.Path());
    }
    arguments.End();
}

void ChooseWithFile(const std::string& item, Arguments& arguments) {
    const std::string path = arguments.Path();
    arguments.End();
    if (Headless.NoFiles) throw ActionFailed{NoFilesHere};
    Control& control = ChoosableControl(item);
    Headless.Files.push_back(path);
    SendChoose(control);
}

void Open(ScriptRun&, Arguments& arguments) {
    ChooseWithFile("optOpen", arguments);
}

void Save(ScriptRun&, Arguments& arguments) {
    ChooseWithFile("optSaveAs", arguments);
}

void Echo(ScriptRun& run, Arguments& arguments) {
    const std::string text = arguments.Text();
    arguments.End();
    run.out << text << '\n';
}

void Show(ScriptRun& run, Arguments& arguments) {
    arguments.End();
    std::string text = TextWithSigns(Proof.RTB, {"ε", "▶", "▲"});
    std::erase(text, '\r');
    run.out << text;
    if (!text.empty() && !text.ends_with('\n')) run.out << '\n';
}

void Dump(ScriptRun& run, Arguments& arguments) {
    arguments.End();
    WriteState(run.beepsDumped, run.messagesDumped, run.out);
    run.beepsDumped = Headless.Beeps.size();
    run.messagesDumped = Headless.Messages.size();
}

constexpr std::array Actions = std::to_array<ActionRow>({
    {"choose", Choose},
    {"type", Type},
    {"set", Set},
    {"key", PressNamedKey},
    {"click", Click},
    {"doubleclick", DoubleClick},
    {"select", SelectText},
    {"pick", Pick},
    {"answer", QueueAnswer},
    {"file", QueueFile},
    {"open", Open},
    {"save", Save},
    {"expect", Expect},
    {"echo", Echo},
    {"show", Show},
    {"dump", Dump},
});

}  // namespace

Action FindScriptAction(std::string_view name) {
    return FindAction(Actions, name);
}

std::string NoAction(std::string_view name) {
    std::vector<std::string_view> names;
    names.reserve(Actions.size());
    for (const ActionRow& row : Actions) names.emplace_back(row.name);
    return "there is no action " + std::string(name) + DidYouMean(name, names);
}

Control& FindControl(const std::string& name) {
    Form& top = TopForm();
    Control* control = top.Find(name);
    if (control == nullptr && !ModalFormOpen()) control = Proof.Find(name);
    if (control != nullptr) return *control;
    std::vector<std::string_view> names;
    for (const Control* one : top.Controls) names.emplace_back(one->Name);
    throw ActionFailed{top.Name + " has no " + name + DidYouMean(name, names)};
}

}  // namespace tessaryn
