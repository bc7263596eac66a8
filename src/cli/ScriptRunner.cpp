#include "cli/ScriptRunner.h"

#include <exception>
#include <ios>
#include <sstream>
#include <utility>

#include "check/Check.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Ink.h"
#include "cli/Keyboard.h"
#include "cli/OnOneLine.h"
#include "cli/Script.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "view/Display.h"

namespace tessaryn {

namespace {

constexpr std::size_t LongestLine = 1U << 26;  // what goes on for longer need not have an end

// Reads the next line of the script into run.text. False at its end.
bool ReadLine(ScriptRun& run) {
    constexpr std::streambuf::int_type end = std::streambuf::traits_type::eof();
    run.text.clear();
    try {
        std::streambuf& source = *run.in->rdbuf();
        auto byte = source.sbumpc();
        if (byte == end) return false;
        for (; byte != end && byte != '\n'; byte = source.sbumpc()) {
            if (run.text.size() == LongestLine) throw ActionFailed{"the line does not end"};
            run.text += static_cast<char>(byte);
        }
    } catch (const std::ios_base::failure&) {
        throw ActionFailed{"the script can't be read"};
    }
    if (run.text.ends_with('\r')) run.text.pop_back();
    if (run.line++ == 0 && run.text.starts_with("\xEF\xBB\xBF")) run.text.erase(0, 3);
    return true;
}

bool IsAction(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t");
    return first != std::string::npos && line[first] != '#';
}

void DoLine(ScriptRun& run, const std::string& line) {
    Arguments arguments(line);
    const std::string name = arguments.Word();
    const Action action = FindScriptAction(name);
    if (action == nullptr) throw ActionFailed{NoAction(name)};
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
    while (std::exchange(run.again, false) || ReadLine(run)) {
        if (!IsAction(run.text)) continue;
        if (ClosesStartForm(run.text)) {
            run.again = true;  // its turn comes when the form is gone
        } else {
            DoLine(run, run.text);
        }
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
    if (run.acted) run.acted();
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

ScriptFailure PlayScript(std::istream& script, const ScriptOptions& options, std::ostream& out,
                         std::function<void()> acted) {
    ScriptRun run(out);
    run.in = &script;
    run.acted = std::move(acted);
    run.checkDocument = options.checkDocument;
    run.checkLines = options.checkLines;
    RunToEnd(run, options);
    if (run.failure.empty()) return {};
    return {run.line, OnOneLine(run.failure + LastBeep())};
}

ScriptFailure PlayScript(const std::string& script, const ScriptOptions& options,
                         std::ostream& out) {
    std::istringstream in(script);
    return PlayScript(in, options, out, {});
}

int RunScript(std::istream& script, const std::string& name, const ScriptOptions& options,
              std::ostream& out, std::ostream& err) {
    std::size_t told = 0;
    const auto tellNotes = [&] {
        for (; told < Headless.Notes.size(); ++told) {
            err << name << ": " << OnOneLine(Headless.Notes[told]) << '\n';
        }
    };
    const ScriptFailure failure = PlayScript(script, options, out, [&] {
        tellNotes();
        if (options.answersAtOnce) out.flush();
    });
    tellNotes();
    if (failure.reason.empty()) return 0;
    err << Ink::Bad << name << ':' << failure.line << ": " << Ink::Plain << failure.reason << '\n';
    return 1;
}

ScriptResult RunScript(const std::string& script, const std::string& name,
                       const ScriptOptions& options) {
    std::ostringstream out;
    std::ostringstream err;
    std::istringstream in(script);
    const int status = RunScript(in, name, options, out, err);
    return {status, out.str(), err.str()};
}

}  // namespace tessaryn
