// What a click in the proof display means while a rule is pending.
#pragma once

namespace tessaryn {

// What the menu item of a click rule does: the rule becomes pending and its prompt is shown.
void StartClickRule(int ruleMode);

// A click in the proof display, taken as the operand of the pending rule.
void ClickInDisplay();

}  // namespace tessaryn
