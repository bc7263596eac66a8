// The outside world without a display: replies wait in queues, and what the program would have
// shown is kept. The platform of tessaryn-cli and of all tests.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace tessaryn {

struct MessageShown {
    std::string title;
    std::string text;
    Answer answer = Answer::OK;  // what it was answered with
};

struct OpenForm {
    Form* form = nullptr;
    bool modal = false;
};

struct HeadlessState {
    // Replies to come. With none queued a message box takes its default button, and a file dialogue
    // is cancelled.
    std::deque<Answer> Answers;
    std::deque<std::optional<std::string>> Files;  // nullopt: cancelled

    // What has happened so far, in order.
    std::vector<std::string> Beeps;  // their reasons
    std::vector<std::string> Notes;  // without a beep
    std::vector<MessageShown> Messages;
    std::vector<std::string> PagesOpened;   // help files, pages of them, web addresses
    std::vector<CommonDialog> FileDialogs;  // as they were asked
    std::vector<std::string> Pages;         // of the last print

    Clip Clipboard;

    std::vector<OpenForm> Forms;  // bottom to top; hidden ones may still be among them

    bool StartingUp = false;  // until the forms of the start are gone
    bool Ended = false;       // EndProgram has been called
    std::string Fault;        // a question that has no such reply; the program was ended for it

    bool PointerBeyondEdge = false;
    bool HasHelpViewer = false;
    bool HasPrinter = true;
    bool NoFiles = false;  // a command that asks for a file, or prints, ends the program: Fault
};

inline constexpr const char* NoFilesHere = "nothing can be opened, saved or printed here";

inline HeadlessState Headless;

// Starts the program anew on an empty platform, up to the main window's first activation. With
// showHidden the menu items that are made hidden become reachable.
void StartHeadless(const std::string& settingsDir = "", bool showHidden = false,
                   bool noFiles = false);

// Whether NoFiles holds. Then the program is ended, for a command that asked.
bool EndedForWantOfFiles();

// The form that the user's actions go to; the main window if nothing else is open.
Form& TopForm();

// True while a modal form keeps the user from the main window.
bool ModalFormOpen();

const char* AnswerName(Answer answer);

}  // namespace tessaryn
