#include "mainwindow/Questions.h"

#include <utility>

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"

namespace tessaryn {
namespace {

// The same, with the failure message of the command that asks.
template <class Reply>
std::function<void(Reply)> Guarded(std::function<void(Reply)> then) {
    return [then = std::move(then), message = FailureMessage](Reply reply) {
        RunHandler([&] { then(reply); }, message);
    };
}

}  // namespace

void AskIn(Form& form, EventHandler then) {
    OperationCancelled = false;
    ShowModal(form, [then = std::move(then), message = FailureMessage] {
        if (then) RunHandler(then, message);
    });
}

void Ask(const Message& message, std::function<void(Answer)> then) {
    MsgBox(message, Guarded<Answer>(std::move(then)));
}

void AskWhatToOpen(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then) {
    ShowOpen(dialog, Guarded<const ChosenFile&>(std::move(then)));
}

void AskWhereToSave(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then) {
    ShowSave(dialog, Guarded<const ChosenFile&>(std::move(then)));
}

}  // namespace tessaryn
