// Builds proofs for tests the way a user does, by actions.
#pragma once

#include <string>
#include <vector>

#include "cli/HeadlessPlatform.h"
#include "cli/Script.h"
#include "cli/ScriptRunner.h"

namespace tessaryn {

inline std::string EnterPremise(const std::string& text) {
    return "choose optPremise\nset RTB " + Quoted(text) + "\nchoose cmdContinue\n";
}

inline std::string EnterAxiom(const std::string& text) {
    return "choose optAxiom\nset RTB " + Quoted(text) + "\nchoose cmdContinue\n";
}

// Runs the script and leaves the document that it built in the globals. "" or what went wrong.
inline std::string Build(const std::string& script) {
    ScriptOptions options;
    options.checkDocument = true;
    options.checkLines = true;
    return RunScript(script, "script", options).error;
}

// Answers for as long as a form asks.
inline void AnswerForms(const EventHandler& answer) {
    while (ModalFormOpen()) {
        answer();
        SettleQuestions();
    }
}

}  // namespace tessaryn
