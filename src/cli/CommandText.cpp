#include "cli/CommandText.h"

#include <algorithm>

#include "cli/Nearest.h"

namespace tessaryn {

namespace {

constexpr std::size_t NameWidth = 7;  // of a command in the list of all

std::string Padded(std::string text, std::size_t width) {
    text.resize(std::max(text.size() + 1, width), ' ');
    return text;
}

// Each line of a text behind the first, set in.
std::string SetIn(std::string text, std::size_t blanks) {
    const std::string margin(blanks, ' ');
    for (std::size_t at = text.find('\n'); at != text.npos; at = text.find('\n', at + 1)) {
        text.insert(at + 1, margin);
    }
    return text;
}

std::string Options(const CommandText& command, std::size_t margin) {
    const auto written = [](const OptionText& option) {
        return std::string(option.name) + (*option.value == '\0' ? "" : " ") + option.value;
    };
    std::size_t width = 0;
    for (const OptionText& option : command.options) {
        width = std::max(width, written(option).size() + 2);
    }
    std::string text;
    for (const OptionText& option : command.options) {
        text += std::string(margin, ' ') + Padded(written(option), width) +
                SetIn(option.what, margin + width) + "\n";
    }
    return text;
}

constexpr const char* OtherForms =
    "       tessaryn-cli --version | --help\n"
    "       tessaryn-cli COMMAND --help | help COMMAND\n";

constexpr const char* ExitStatus =
    "\n"
    "Exit status: 0 done; 1 refused, or an expectation failed, or grade could not judge all; 2\n"
    "wrong use, a file that check can't read or judge, or a sheet that grade can't use.\n";

std::string Forms(const CommandText& command, std::string_view start) {
    std::string text;
    for (const char* form : command.forms) {
        text += text.empty() ? start : "       ";
        text +=
            "tessaryn-cli " + std::string(command.name) + (*form == '\0' ? "" : " ") + form + "\n";
    }
    return text;
}

}  // namespace

const std::vector<CommandText>& CommandTexts() {
    static const std::vector<CommandText> texts = {
        {"run",
         {"[--settings DIR] [--hidden] [--check] [--no-files] FILE|-"},
         "runs a script of user actions, one a line; with - each line of standard input as\n"
         "it comes, and what it prints at once",
         {{"--settings", "DIR", "reads and writes the settings in DIR"},
          {"--hidden", "", "hidden menu items can be chosen"},
          {"--check", "", "checks the whole document after each action, each line of it too"},
          {"--no-files", "", "an action that would open, save or print ends the run"}},
         "printf '%s\\n' 'choose optPremise' 'set RTB \"P & Q\"' 'choose cmdContinue' \\\n"
         "    'choose optSplit' 'click 1' 'save \"first.proof\"' | tessaryn-cli run -"},
        {"parse",
         {""},
         "reads expressions as JSON strings, prints their tables, one a line",
         {},
         "echo '\"P & Q => P\"' | tessaryn-cli parse"},
        {"same",
         {""},
         "reads pairs of expressions as JSON arrays, prints true or false",
         {},
         "echo '[\"ALL(x):P(x)\", \"ALL(y):P(y)\"]' | tessaryn-cli same"},
        {"dump",
         {"FILE.proof"},
         "opens a proof and prints its state as JSON",
         {},
         "tessaryn-cli dump first.proof"},
        {"html",
         {"[--fold] IN.proof OUT.html"},
         "writes a proof as a page for a browser",
         {{"--fold", "", "one that folds blocks, and tells what each line rests on"}},
         "tessaryn-cli html --fold first.proof first.html"},
        {"latex",
         {"IN.proof OUT.tex"},
         "writes a proof as a LaTeX document",
         {},
         "tessaryn-cli latex first.proof first.tex"},
        {"print",
         {"IN.proof OUT.txt"},
         "writes a proof as it would be printed, a form feed between pages",
         {},
         "tessaryn-cli print first.proof first.txt"},
        {"fits",
         {"FILE.proof [LINE]"},
         "prints the rules that fit the active lines of a proof, or one of them, and\n"
         "what they would write, as JSON, one a line",
         {},
         "tessaryn-cli fits first.proof 1"},
        {"check",
         {"[--json] [--all] [--library DIR] [--jobs N] FILE.proof...", "--rests-on DIR [--jobs N]"},
         "says whether each line of a proof follows, and what the last one rests on",
         {{"--json", "", "as JSON, with all statements that are in force at the end"},
          {"--all", "", "with all statements"},
          {"--library", "DIR", "axioms that are proved in DIR count as theorems"},
          {"--rests-on", "DIR", "tells of each theorem in DIR what it rests on"},
          {"--jobs", "N", "reads DIR on N threads"}},
         "tessaryn-cli check --all first.proof"},
        {"grade",
         {"[--csv | --json] [--jobs N] [--seconds N] SHEET SUBMISSION...", "--lint SHEET"},
         "gives points for proofs and scripts (files, or all in a folder) by a sheet of\n"
         "exercises, and says why points are missing",
         {{"--csv", "", "for a spreadsheet"},
          {"--json", "", "for a program"},
          {"--jobs", "N", "judges N at a time"},
          {"--seconds", "N", "gives each N seconds instead of 10"},
          {"--lint", "", "says what is wrong with the sheet"}},
         "echo '{\"title\": \"First sheet\", \"exercises\":\n"
         "    [{\"name\": \"half\", \"premises\": [\"P & Q\"], \"goal\": \"P\"}]}' > sheet.json\n"
         "tessaryn-cli grade sheet.json first.proof"},
    };
    return texts;
}

std::string UsageOf(const CommandText& command) {
    return Forms(command, "usage: ");
}

std::string HelpOf(const CommandText& command) {
    std::string what = command.what;
    what[0] = static_cast<char>(what[0] - 'a' + 'A');
    std::string text = UsageOf(command) + "\n" + what + ".\n";
    if (!command.options.empty()) text += "\n" + Options(command, 2);
    return text + "\nExample:\n  " + SetIn(command.example, 2) + "\n";
}

std::string UsageOfAll() {
    std::string text;
    for (const CommandText& command : CommandTexts()) {
        text += Forms(command, text.empty() ? "usage: " : "       ");
    }
    return text + OtherForms;
}

std::string HelpOfAll() {
    std::string text = UsageOfAll() + "\n";
    for (const CommandText& command : CommandTexts()) {
        text += Padded(command.name, NameWidth) + SetIn(command.what, NameWidth + 2) + "\n" +
                Options(command, NameWidth + 2);
    }
    return text + ExitStatus;
}

bool CommandWords::Has(std::string_view name) const {
    return std::any_of(options.begin(), options.end(),
                       [name](const Option& option) { return option.name == name; });
}

std::string CommandWords::ValueOf(std::string_view name) const {
    std::string value;
    for (const Option& option : options) {
        if (option.name == name) value = option.value;
    }
    return value;
}

CommandWords SortWords(const CommandText& command, const std::vector<std::string>& words) {
    CommandWords sorted;
    bool optionsEnd = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (optionsEnd || !word.starts_with('-') || word == "-") {
            sorted.files.push_back(word);
            continue;
        }
        optionsEnd = word == "--";
        if (optionsEnd) continue;
        sorted.wantsHelp = sorted.wantsHelp || word == "--help";
        if (word == "--help") continue;
        const auto known =
            std::find_if(command.options.begin(), command.options.end(),
                         [&](const OptionText& option) { return option.name == word; });
        if (known == command.options.end()) {
            std::vector<std::string_view> names = {"--help"};
            for (const OptionText& option : command.options) names.emplace_back(option.name);
            throw WrongUse{"there is no option " + word + DidYouMean(word, names)};
        }
        const bool takesValue = *known->value != '\0';
        if (takesValue && (i + 1 == words.size() || words[i + 1].empty())) {
            throw WrongUse{word + " needs a value, " + known->value};
        }
        sorted.options.push_back({word, takesValue ? words[++i] : ""});
    }
    return sorted;
}

}  // namespace tessaryn
