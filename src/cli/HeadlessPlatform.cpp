#include "cli/HeadlessPlatform.h"

#include <algorithm>

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "menu/MainWindow.h"
#include "menu/StartProgram.h"
#include "platform/Events.h"
#include "text/TextSteps.h"

namespace tessaryn {

namespace {

// Keeps a form among the open ones for as long as it is up, however that ends.
struct ModalScope {
    explicit ModalScope(Form& shown) : form(shown) { Headless.Forms.push_back({&form, true}); }
    ~ModalScope() {
        form.Hide();
        std::erase_if(Headless.Forms, [&](const OpenForm& open) { return open.form == &form; });
    }
    ModalScope(const ModalScope&) = delete;
    ModalScope& operator=(const ModalScope&) = delete;

    Form& form;
};

bool HasButton(Buttons buttons, Answer answer) {
    if (answer == Answer::Cancel) return buttons == Buttons::YesNoCancel;
    return (buttons == Buttons::OK) == (answer == Answer::OK);
}

bool TakeFileReply(CommonDialog& dialog) {
    Headless.FileDialogs.push_back(dialog);
    if (Headless.Files.empty()) return false;
    const std::optional<std::string> reply = Headless.Files.front();
    Headless.Files.pop_front();
    if (!reply) return false;
    dialog.FileName = *reply;
    return true;
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

void StartHeadless(const std::string& settingsDir, bool showHidden) {
    std::function<bool()> nextStep = std::move(Headless.NextStep);
    Headless = {};
    Headless.NextStep = std::move(nextStep);
    Headless.StartingUp = true;
    ReleasePrinter();
    StartProgram();
    AppPath = settingsDir;
    LoadMainWindow("");
    if (showHidden) ShowHiddenItems();
    Proof.Visible = true;
    Headless.Forms.push_back({&Proof, false});
    Proof.Activated();
    Headless.StartingUp = false;
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

void ShowModal(Form& form) {
    form.Show();
    const ModalScope scope(form);
    form.Activated();
    while (form.Visible) {
        if (Headless.Ended || !Headless.NextStep || !Headless.NextStep()) throw ProgramEnded{};
    }
}

void ShowModeless(Form& form) {
    form.Show();
    std::erase_if(Headless.Forms, [&](const OpenForm& open) { return open.form == &form; });
    Headless.Forms.push_back({&form, false});
    form.Activated();
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

Answer MsgBox(const std::string& text, const std::string& title, Buttons buttons,
              Answer defaultAnswer) {
    Answer answer = defaultAnswer;
    if (!Headless.Answers.empty()) {
        answer = Headless.Answers.front();
        Headless.Answers.pop_front();
    }
    Headless.Messages.push_back({title, text, answer});
    if (!HasButton(buttons, answer)) {
        Headless.Fault =
            std::string("the message box \"") + title + "\" has no button " + AnswerName(answer);
        throw ProgramEnded{};
    }
    return answer;
}

bool ShowOpen(CommonDialog& dialog) {
    return TakeFileReply(dialog);
}

bool ShowSave(CommonDialog& dialog) {
    return TakeFileReply(dialog);
}

void SetClipboard(const Clip& content) {
    Headless.Clipboard = {WithCrLf(content.plain), content.rtf};
}

Clip ClipboardContent() {
    return Headless.Clipboard;
}

bool PointerBeyondRightEdge(const Control&) {
    return Headless.PointerBeyondEdge;
}

void PopupMenu(MenuItem&) {}

bool ShowHelpFile(const std::string& path) {
    Headless.PagesOpened.push_back(path);
    return Headless.HasHelpViewer;
}

void OpenWebSite(const std::string& address) {
    Headless.PagesOpened.push_back(address);
}

}  // namespace tessaryn
