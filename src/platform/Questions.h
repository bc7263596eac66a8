// What waits for the user: forms that block the others, message boxes, file dialogues.
//
// Whoever asks hands over what happens with the answer and returns at once: nothing waits on the
// stack. The questions stand on one another; the one on top is answered first. Once the event that
// answered it is over, it is taken off, and what was handed over is called.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/Form.h"

namespace tessaryn {

// Shows a form in front of all others. It is answered when it has been hidden.
void ShowModal(Form& form, EventHandler then = nullptr);

enum class Answer { OK, Yes, No, Cancel };
enum class Buttons { OK, YesNo, YesNoCancel };

struct Message {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::OK;
    Answer defaultAnswer = Answer::OK;
};

// A message box. Closing it counts as Cancel, or as No where there is no such button.
void MsgBox(const Message& message, std::function<void(Answer)> then = nullptr);

struct CommonDialog {
    std::string FileName;  // in: the name offered; out: the full path chosen
    std::string Filter;    // "Proofs (*.proof)|*.proof"
    std::string InitDir;   // "" for the system's choice
    bool OverwritePrompt = false;
    bool FileMustExist = false;  // a name without ending may stand for one with the filter's
    std::string Title{};         // of its window; "" for what is usual
};

// The full path that the user chose; nothing if the dialogue was cancelled.
using ChosenFile = std::optional<std::string>;

void ShowOpen(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then);
void ShowSave(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then);

// --- for front ends

// At the end of each event: takes off what has been answered.
void SettleQuestions();

// Is anything being asked?
bool QuestionsOpen();

// Forgets all questions; nothing that was handed over is called.
void ForgetQuestions();

// Each has one body in each front end. What shows a box calls `reply` once, during a later event or
// at once.
void PresentModal(Form& form);  // shows it and runs its Activated
void TakeDown(Form& form);      // it has been answered: its window goes
void PresentMessage(const Message& message, std::function<void(Answer)> reply);
void PresentOpen(const CommonDialog& dialog, std::function<void(const ChosenFile&)> reply);
void PresentSave(const CommonDialog& dialog, std::function<void(const ChosenFile&)> reply);

}  // namespace tessaryn
