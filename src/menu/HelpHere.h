// Help where the user stands: what F1 gives.
#pragma once

#include <string>

#include "platform/Form.h"

namespace tessaryn {

struct Help {
    std::string page;  // of the manual, as "rule-join"; "" for the manual as it was left
    std::string note;  // what to tell in its place; "" if the page is to be opened
};

// For the form that the user is in, and what has the focus there: the page of what the form asks
// for or the pending rule waits for; at a statement of the proof a note of the rules that take it.
Help HelpHere(const Form& form, const Control* focus);

// The page of the pending rule, "" if there is none.
std::string PageOfPendingRule();

}  // namespace tessaryn
