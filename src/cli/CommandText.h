// What tessaryn-cli can be told, in words: the only place for the names of commands and options,
// and what the help says of them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

struct OptionText {
    const char* name;   // "--jobs"
    const char* value;  // "N"; "" if it takes none
    const char* what;
};

struct CommandText {
    const char* name;
    std::vector<const char*> forms;  // what may stand behind the name
    const char* what;                // begins with a small letter; lines of up to 80 characters
    std::vector<OptionText> options;
    const char* example;  // lines for a shell; that of `run` makes the proof that others take
};

const std::vector<CommandText>& CommandTexts();

std::string UsageOf(const CommandText& command);
std::string HelpOf(const CommandText& command);
std::string UsageOfAll();
std::string HelpOfAll();

// What stands behind a command, with its options sorted out.
struct CommandWords {
    struct Option {
        std::string name;
        std::string value;
    };
    std::vector<Option> options;
    std::vector<std::string> files;  // in their order; all other words
    bool wantsHelp = false;

    bool Has(std::string_view name) const;
    // The last value of that option; "" if it isn't there.
    std::string ValueOf(std::string_view name) const;
};

// Thrown by what can't make sense of a command.
struct WrongUse {
    std::string reason;
};

// A word that begins with "-" is an option, until a "--"; "-" alone is a file. Throws WrongUse.
CommandWords SortWords(const CommandText& command, const std::vector<std::string>& words);

}  // namespace tessaryn
