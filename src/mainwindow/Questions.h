// What a command asks. Each returns at once; `then` is run when the user has answered, guarded as
// the command itself is: see RunHandler.
#pragma once

#include "platform/Questions.h"

namespace tessaryn {

// In a form, until it has been hidden. OperationCancelled then tells whether the user cancelled.
void AskIn(Form& form, EventHandler then = nullptr);

// In a message box.
void Ask(const Message& message, std::function<void(Answer)> then);

// For a file.
void AskWhatToOpen(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then);
void AskWhereToSave(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then);

}  // namespace tessaryn
