// The pending rule: how one begins to wait for a click, and how it ends.
#pragma once

#include <string>

#include "document/RuleNames.h"

namespace tessaryn {

// A rule, or another value of RuleMode, becomes pending: its prompt is shown, a selection in the
// display is dropped.
void AwaitClick(int ruleMode, const std::string& prompt);

// No rule is pending any more, and StatusLine stays as it is.
void EndRule();

// The end of a rule: none is pending any more. If its statement has been written the prompt goes;
// otherwise StatusLine keeps the message.
void FinishRule(bool written);

}  // namespace tessaryn
