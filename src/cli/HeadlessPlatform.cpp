#include "cli/HeadlessPlatform.h"

#include <algorithm>

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "menu/MainWindow.h"
#include "menu/StartProgram.h"
#include "platform/Events.h"
#include "platform/Files.h"
#include "text/TextSteps.h"

namespace tessaryn {

namespace {

bool HasButton(Buttons buttons, Answer answer) {
    if (answer == Answer::Cancel) return buttons == Buttons::YesNoCancel;
    return (buttons == Buttons::OK) == (answer == Answer::OK);
}

void ReplyToFileDialog(const CommonDialog& dialog,
                       const std::function<void(const ChosenFile&)>& reply) {
    if (EndedForWantOfFiles()) return;
    Headless.FileDialogs.push_back(dialog);
    ChosenFile file;
    if (!Headless.Files.empty()) {
        file = Headless.Files.front();
        Headless.Files.pop_front();
    }
    reply(file);
}

void PutOnTop(Form& form, bool modal) {
    form.Show();
    std::erase_if(Headless.Forms, [&](const OpenForm& open) { return open.form == &form; });
    Headless.Forms.push_back({&form, modal});
    form.Activated();
}

// The entries of the recent files stay as they are: there is nothing behind them.
void ShowHiddenItems() {
    for (Control* control : Proof.Controls) {
        if (dynamic_cast<MenuItem*>(control) != nullptr && !control->Name.starts_with("optFile")) {
            control->Visible = true;
        }
    }
}

}  // namespace

void StartHeadless(const std::string& settingsDir, bool showHidden, bool noFiles) {
    Headless = {};
    Headless.NoFiles = noFiles;
    Headless.StartingUp = true;
    ReleasePrinter();
    StartProgram();
    AppPath = settingsDir;
    LoadMainWindow("", [showHidden] {
        if (showHidden) ShowHiddenItems();
        Proof.Visible = true;
        Headless.Forms.push_back({&Proof, false});
        Proof.Activated();
    });
    SettleQuestions();
}

bool EndedForWantOfFiles() {
    if (!Headless.NoFiles) return false;
    Headless.Fault = NoFilesHere;
    EndProgram();
    return true;
}

Form& TopForm() {
    for (auto open = Headless.Forms.rbegin(); open != Headless.Forms.rend(); ++open) {
        if (open->form->Visible) return *open->form;
    }
    return Proof;
}

bool ModalFormOpen() {
    return std::any_of(Headless.Forms.begin(), Headless.Forms.end(),
                       [](const OpenForm& open) { return open.modal && open.form->Visible; });
}

const char* AnswerName(Answer answer) {
    switch (answer) {
        case Answer::Yes:
            return "Yes";
        case Answer::No:
            return "No";
        case Answer::Cancel:
            return "Cancel";
        case Answer::OK:
            break;
    }
    return "OK";
}

void PresentModal(Form& form) {
    PutOnTop(form, true);
}

void TakeDown(Form&) {}

void ShowModeless(Form& form) {
    PutOnTop(form, false);
}

void RefreshNow(Form&) {}

void EndProgram() {
    Headless.Ended = true;
}

void Beep(const std::string& reason) {
    Headless.Beeps.push_back(reason);
}

void Tell(const std::string& note) {
    Headless.Notes.push_back(note);
}

void ProofOpened() {}  // run --check looks after each action

void PresentMessage(const Message& message, std::function<void(Answer)> reply) {
    Answer answer = message.defaultAnswer;
    if (!Headless.Answers.empty()) {
        answer = Headless.Answers.front();
        Headless.Answers.pop_front();
    }
    Headless.Messages.push_back({message.title, message.text, answer});
    if (HasButton(message.buttons, answer)) return reply(answer);
    Headless.Fault =
        "the message box \"" + message.title + "\" has no button " + AnswerName(answer);
    EndProgram();
}

void PresentOpen(const CommonDialog& dialog, std::function<void(const ChosenFile&)> reply) {
    ReplyToFileDialog(dialog, reply);
}

void PresentSave(const CommonDialog& dialog, std::function<void(const ChosenFile&)> reply) {
    ReplyToFileDialog(dialog, reply);
}

void WriteBehind(const std::string& path, std::function<std::string()> bytes,
                 std::function<void(const std::string&)> then) {
    then(ReplaceFile(path, bytes()));
}

void SetClipboard(const LateClip& content) {
    const Clip made = content.make();
    Headless.Clipboard = {WithCrLf(made.plain), made.rtf};
}

Clip ClipboardContent() {
    return Headless.Clipboard;
}

bool PointerBeyondRightEdge(const Control&) {
    return Headless.PointerBeyondEdge;
}

void PopupMenu(MenuItem&) {}

bool ShowHelpFile(const std::string& path, const std::string& page) {
    Headless.PagesOpened.push_back(page.empty() ? path : page);
    return Headless.HasHelpViewer;
}

void OpenWebSite(const std::string& address) {
    Headless.PagesOpened.push_back(address);
}

}  // namespace tessaryn
