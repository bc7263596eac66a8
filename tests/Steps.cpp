#include "Steps.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <sstream>

namespace tessaryn {
namespace {

constexpr std::string_view Between = " ; ";

constexpr std::array Expectations =
    std::to_array<std::string_view>({"beep", "no", "count", "mode", "status", "title", "form",
                                     "control", "message", "line", "rule"});

bool IsIn(std::string_view word, const auto& words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}

std::string InQuotes(std::string_view text) {
    return '"' + std::string(text) + '"';
}

// "3:&#2": click 3 "&" 2
std::string Click(std::string_view target) {
    std::string click = "click " + std::string(target);
    if (const auto place = click.find('.'); place != std::string::npos) click[place] = ' ';
    const auto colon = click.find(':');
    if (colon == std::string::npos) return click + '\n';
    const auto count = click.find('#');
    std::string token = click.substr(colon + 1, count - colon - 1);
    const std::string which = count == std::string::npos ? "" : " " + click.substr(count + 1);
    return click.substr(0, colon) + ' ' + InQuotes(token) + which + '\n';
}

class Translator {
  public:
    void Take(std::string_view step) {
        const std::string_view word = step.substr(0, step.find(' '));
        const std::string_view rest = step.substr(std::min(word.size() + 1, step.size()));
        if (word == "?") return Line("expect " + message_, InQuotes(rest));
        if (word == ":") return Enter("TestParser", rest);
        if (word == "<") return Enter("MyInputBox", rest);
        if (IsIn(word, Expectations)) return Line("expect", step);
        if (std::isdigit(static_cast<unsigned char>(word[0])) != 0) return ExpectLine(word, rest);
        message_ = "status";
        if (word == "+" || word == "!") return Statement(word == "+" ? "Premise" : "Axiom", rest);
        if (std::isupper(static_cast<unsigned char>(word[0])) != 0) return Command(word, rest);
        script_ += std::string(step) + '\n';
    }
    const std::string& Script() const { return script_; }

  private:
    void Line(std::string_view start, std::string_view rest) {
        script_ += std::string(start) + ' ' + std::string(rest) + '\n';
    }

    void Enter(std::string_view form, std::string_view text) {
        const bool inParser = form == "TestParser";
        message_ = inParser ? "control StatusLine" : "control Label2";
        Line(inParser ? "set RTB" : "set Text1", InQuotes(text));
        Line("choose", inParser ? "cmdContinue" : "Continue");
    }

    void Statement(std::string_view kind, std::string_view text) {
        Line("choose", "opt" + std::string(kind));
        Enter("TestParser", text);
        message_ = "status";
    }

    // "= TEXT" or "by TEXT" of a statement
    void ExpectLine(std::string_view number, std::string_view rest) {
        const bool text = rest.starts_with("= ");
        Line(text ? "expect line" : "expect rule",
             std::string(number) + ' ' + InQuotes(rest.substr(text ? 2 : 3)));
    }

    void Command(std::string_view name, std::string_view targets) {
        const bool isWhole = name.starts_with("Del") || name.starts_with("Opt");
        Line("choose", (isWhole ? "" : "opt") + std::string(name));
        std::istringstream words{std::string(targets)};
        for (std::string target; words >> target;) script_ += Click(target);
    }

    std::string script_;
    std::string message_ = "status";  // where the next one is looked for
};

std::string_view Trimmed(std::string_view text) {
    while (text.starts_with(' ') || text.starts_with('\n')) text.remove_prefix(1);
    while (text.ends_with(' ') || text.ends_with('\n')) text.remove_suffix(1);
    return text;
}

// The line of the script that an error "script:LINE: ..." is about.
std::string LineOf(const std::string& script, const std::string& error) {
    std::istringstream lines(script);
    std::string line;
    for (int n = std::stoi(error.substr(error.find(':') + 1)); n > 0; --n) {
        std::getline(lines, line);
    }
    return line;
}

}  // namespace

std::string ScriptOf(std::string_view steps) {
    Translator translator;
    while (!steps.empty()) {
        const auto end = std::min(steps.find(Between), steps.size());
        const std::string_view step = Trimmed(steps.substr(0, end));
        if (!step.empty()) translator.Take(step);
        steps.remove_prefix(std::min(end + Between.size(), steps.size()));
    }
    return translator.Script();
}

ScriptResult Replay(const std::string& script, bool showHidden) {
    ScriptOptions options;
    options.checkDocument = true;
    options.checkLines = true;
    options.showHidden = showHidden;
    ScriptResult result = RunScript(script, "script", options);
    if (!result.error.empty()) {
        result.error = LineOf(script, result.error) + ": " + result.error;
    }
    return result;
}

std::string Do(std::string_view steps) {
    return Replay(ScriptOf(steps), true).error;
}

}  // namespace tessaryn
