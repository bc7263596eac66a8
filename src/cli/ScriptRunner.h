// Runs a script of user actions, one a line, against the program. docs/scripts.md tells what a
// script may hold.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

namespace tessaryn {

#ifdef NDEBUG
inline constexpr bool CheckByDefault = false;
#else
inline constexpr bool CheckByDefault = true;
#endif

struct ScriptOptions {
    std::string settingsDir;              // "" reads and writes no settings
    bool showHidden = false;              // menu items that are made hidden can be chosen
    bool checkDocument = CheckByDefault;  // after each action; a fault ends the run
    bool checkLines = false;              // the same: whether each line follows
    bool noFiles = false;                 // a command that would read or write one ends the run
    bool answersAtOnce = false;           // flushes after each action, for who waits for it
};

// What ended a run early: an action that could not be done, or an expectation that failed.
struct ScriptFailure {
    std::size_t line = 0;  // 1-based; 0 if none was begun
    std::string reason;    // "" if the script ran to its end
};

// Reads a line, does it, and reads the next. Leaves the document that the script built in the
// globals, however the run ended. Results go to out.
ScriptFailure PlayScript(std::istream& script, const ScriptOptions& options, std::ostream& out,
                         std::function<void()> acted);
ScriptFailure PlayScript(const std::string& script, const ScriptOptions& options,
                         std::ostream& out);

// Results go to out, the reason of a failure to err as "NAME:LINE: reason". Gives the exit status:
// 0 done, 1 an action could not be done or an expectation failed.
int RunScript(std::istream& script, const std::string& name, const ScriptOptions& options,
              std::ostream& out, std::ostream& err);

struct ScriptResult {
    int status = 0;
    std::string output;
    std::string error;
};

// The same for tests.
ScriptResult RunScript(const std::string& script, const std::string& name = "script",
                       const ScriptOptions& options = {});

}  // namespace tessaryn
