// A short way to write what a user does, for tables of cases and for the set-up of tests.
//
// Steps stand in a row, " ; " between them:
//
//   + TEXT           enters a premise              ! TEXT     enters an axiom
//   Join 3 2         chooses optJoin and clicks on statements 3 and 2 (names that begin with "Opt"
//                    or "Del" stand whole). A target is a number, or
//                    3:&   on the first "&" of statement 3         3:&#2     on its second
//                    3.rule, 3.number, 3.comment                   intro     as in a script
//   : TEXT           the entry of TestParser, then Continue
//   < TEXT           the entry of MyInputBox, then Continue
//   ? TEXT           the message of the box entered last, or that of the main window, reads so
//   3 = TEXT         statement 3 reads so          3 by TEXT  its annotation reads so
//   beep, no beep, count 3, mode 0, control NAME "TEXT" and the like: an expectation of a script
//
// Any other step is a line of a script as it stands. TEXT is written as in a script's string.
#pragma once

#include <string>
#include <string_view>

#include "cli/ScriptRunner.h"

namespace tessaryn {

// The script that does these steps.
std::string ScriptOf(std::string_view steps);

// Runs a script with all checks. Ahead of the error stands the line of the script that it is about.
ScriptResult Replay(const std::string& script, bool showHidden);

// Does them from a new start, hidden menu items shown, and leaves the document that they built in
// the globals. "" or what went wrong, behind the script's line.
std::string Do(std::string_view steps);

}  // namespace tessaryn
