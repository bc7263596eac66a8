#include "cli/ScriptRunner.h"

#include <exception>
#include <ostream>
#include <sstream>

#include "check/Check.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Keyboard.h"
#include "cli/OnOneLine.h"
#include "cli/Script.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "view/Display.h"

namespace tessaryn {

namespace {

std::vector<std::string> SplitLines(const std::string& script) {
    std::vector<std::string> lines;
    std::istringstream stream(script.starts_with("\xEF\xBB\xBF") ? script.substr(3) : script);
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

bool IsAction(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t");
    return first != std::string::npos && line[first] != '#';
}

void DoLine(ScriptRun& run, const std::string& line) {
    Arguments arguments(line);
    const std::string name = arguments.Word();
    const Action action = FindScriptAction(name);
    if (action == nullptr) throw ActionFailed{"there is no action " + name};
    if (name != "expect") {
        run.beepsBefore = Headless.Beeps.size();
        run.messagesBefore = Headless.Messages.size();
    }
    action(run, arguments);
}

// An action that the form on top cannot be meant by.
bool IsForMainWindow(const std::string& line) {
    Arguments arguments(line);
    const std::string name = arguments.Word();
    if (name == "choose" || name == "set") return TopForm().Find(arguments.Word()) == nullptr;
    return name == "click" || name == "doubleclick" || name == "select" || name == "open" ||
           name == "save";
}

// The forms of the start stand in nobody's way: work that goes on behind them closes them.
bool ClosesStartForm(const std::string& line) {
    Headless.StartingUp = Headless.StartingUp && ModalFormOpen();
    if (!Headless.StartingUp || !IsForMainWindow(line)) return false;
    TopForm().Close();
    SettleQuestions();
    return true;
}

// False at the end of the script.
bool DoNext(ScriptRun& run) {
    if (run.typed < run.typing.size()) {
        PressKey(TopForm(), TakeKey(run.typing, run.typed));
        return true;
    }
    while (run.line < run.lines.size()) {
        const std::string& line = run.lines[run.line++];
        if (!IsAction(line)) continue;
        if (ClosesStartForm(line)) {
            --run.line;  // its turn comes when the form is gone
            return true;
        }
        DoLine(run, line);
        return true;
    }
    return false;
}

void CheckState(const ScriptRun& run) {
    if (!run.checkDocument) return;
    std::string fault = CheckDocument();
    if (fault.empty()) fault = CheckDisplay();
    if (!fault.empty()) throw ActionFailed{"the document does not agree with itself: " + fault};
}

void CheckLines(ScriptRun& run) {
    if (!run.checkLines || ModalFormOpen()) return;
    std::string bytes = WriteProof();
    if (bytes == run.checked) return;
    run.checked = std::move(bytes);
    const std::string fault = check::CheckProof(run.checked).sentence;
    if (!fault.empty()) throw ActionFailed{fault};
}

// False if the run is over.
bool Step(ScriptRun& run) {
    if (Headless.Ended) return false;
    if (!DoNext(run)) return false;
    CheckState(run);
    CheckLines(run);
    return true;
}

void RunToEnd(ScriptRun& run, const ScriptOptions& options) {
    try {
        StartHeadless(options.settingsDir, options.showHidden, options.noFiles);
        while (Step(run)) {
        }
        run.failure = Headless.Fault;
    } catch (const ActionFailed& failed) {
        run.failure = failed.reason;
    } catch (const std::exception& unexpected) {
        run.failure = std::string("unexpected failure: ") + unexpected.what();
    }
}

std::string LastBeep() {
    if (Headless.Beeps.empty() || Headless.Beeps.back().empty()) return "";
    return " (last beep: " + Headless.Beeps.back() + ")";
}

}  // namespace

ScriptFailure PlayScript(const std::string& script, const ScriptOptions& options,
                         std::ostream& out) {
    ScriptRun run(out);
    run.lines = SplitLines(script);
    run.checkDocument = options.checkDocument;
    run.checkLines = options.checkLines;
    RunToEnd(run, options);
    if (run.failure.empty()) return {};
    return {run.line, OnOneLine(run.failure + LastBeep())};
}

int RunScript(const std::string& script, const std::string& name, const ScriptOptions& options,
              std::ostream& out, std::ostream& err) {
    const ScriptFailure failure = PlayScript(script, options, out);
    for (const std::string& note : Headless.Notes) err << name << ": " << OnOneLine(note) << '\n';
    if (failure.reason.empty()) return 0;
    err << name << ':' << failure.line << ": " << failure.reason << '\n';
    return 1;
}

ScriptResult RunScript(const std::string& script, const std::string& name,
                       const ScriptOptions& options) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunScript(script, name, options, out, err);
    return {status, out.str(), err.str()};
}

}  // namespace tessaryn
