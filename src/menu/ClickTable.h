// The click rules as a table: what a click in the proof display means while a rule is pending.
#pragma once

#include <span>
#include <variant>

#include "entry/ClickPatterns.h"

namespace tessaryn {

// How a rule takes its clicks: by a pattern, or by a conversation of its own, which a rule with two
// clicks is told the state of.
using Conversation = void (*)();
using TwoClicks = void (*)(bool& firstClick);
using ClickTarget = std::variant<std::monostate, LineClick, SignClick, LinesClick, LineAndBoxClick,
                                 Conversation, TwoClicks>;

struct ClickRow {
    int ruleMode;
    const char* prompt;
    ClickTarget click = std::monostate();
    bool (*applies)() = nullptr;  // of several rows for one rule, which one; nullptr: the only one
    Outcome (*takes)(const Expression&) = nullptr;  // of a conversation: does the first line fit?
};
std::span<const ClickRow> ClickTable();

// What the menu item of a click rule does: the rule becomes pending and its prompt is shown.
void StartClickRule(int ruleMode);

// The same for Arb Or, whose entry goes on one side.
void StartArbOr(bool left);

// A click in the proof display, taken as the operand of the pending rule.
void ClickInDisplay();

}  // namespace tessaryn
