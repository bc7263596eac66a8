#include "platform/Questions.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tessaryn {
namespace {

struct Question {
    int number = 0;
    Form* form = nullptr;   // nullptr: a box of the platform's own
    bool answered = false;  // such a box
    EventHandler then;
};

std::vector<Question> Questions;  // the latest at the end
int LastNumber = 0;

int Add(Form* form, EventHandler then) {
    Questions.push_back({++LastNumber, form, false, std::move(then)});
    return LastNumber;
}

bool IsAnswered(const Question& question) {
    return question.form != nullptr ? !question.form->Visible : question.answered;
}

// The reply to a box: keeps the answer until the event is over.
template <class Reply>
std::function<void(Reply)> ReplyTo(std::function<void(Reply)> then) {
    return [number = Add(nullptr, nullptr), then = std::move(then)](Reply reply) {
        const auto question = std::find_if(Questions.begin(), Questions.end(),
                                           [&](const Question& q) { return q.number == number; });
        if (question == Questions.end()) return;
        question->answered = true;
        if (then) question->then = [then, reply = std::decay_t<Reply>(reply)] { then(reply); };
    };
}

}  // namespace

void ShowModal(Form& form, EventHandler then) {
    Add(&form, std::move(then));
    PresentModal(form);
}

void MsgBox(const Message& message, std::function<void(Answer)> then) {
    PresentMessage(message, ReplyTo<Answer>(std::move(then)));
}

void ShowOpen(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then) {
    PresentOpen(dialog, ReplyTo<const ChosenFile&>(std::move(then)));
}

void ShowSave(const CommonDialog& dialog, std::function<void(const ChosenFile&)> then) {
    PresentSave(dialog, ReplyTo<const ChosenFile&>(std::move(then)));
}

void SettleQuestions() {
    while (!Questions.empty() && IsAnswered(Questions.back())) {
        const Question question = std::move(Questions.back());
        Questions.pop_back();
        if (question.form != nullptr) TakeDown(*question.form);
        if (question.then) question.then();
    }
}

bool QuestionsOpen() {
    return !Questions.empty();
}

void ForgetQuestions() {
    Questions.clear();
}

}  // namespace tessaryn
