// The rules by number: name, prompt, and what a click in the proof display calls while one is
// pending.
#pragma once

#include <string>

namespace tessaryn {

// Rule numbers, as stored in Statement::Rule and RuleMode.
namespace Rule {
enum Number {
    Premise = 1,
    Spec,
    ESpec,
    USpec,
    EGen,
    UGen,
    Conclusion,
    DeleteAtSub = 9,
    Quant = 11,
    RemDNeg,
    Join = 14,
    Split,
    Detach,
    IffAnd,
    Subset,
    ImplyAnd,
    Contra,
    DeMorgan,
    ArbOr,
    ArbAnte,
    ArbCons,
    CartProd,
    PowerSet,
    Function,
    Substitute,
    SetEquality,
    Reflex,
    Sym,
    NumberAxioms,
    Induction,
    ImplyOr,
    Definition,
    Cases,
    OrNot,
    SetInsertMode = 44,
    Axiom,
    Rename,
    Reorder,
    NtupleEquality,
    PwUnion,
    ArbUnion,
    Choice,
    Copy,
    FnSpace,
    FnEquality
};
}  // namespace Rule

inline constexpr int RuleCount = 54;

// The name written in annotations; index 1 to RuleCount. Stands in the table RuleTable.
const char* RuleName(int number);

// A rule number that has a name.
inline bool IsRuleNumber(int number) {
    return number >= 1 && number <= RuleCount;
}

struct RuleRow {
    int number;
    const char* name;
    const char* prompt;         // of a click rule, for StatusLine; "" if it has none
    bool twoClicks = false;     // starts with FirstClick set
    void (*click)() = nullptr;  // what a click in the display calls
};

// The row of a rule number or of another value of RuleMode; nullptr if there is none.
const RuleRow* FindRule(int ruleMode);

// What the menu item of a click rule does: the rule becomes pending, its prompt is shown, a
// selection in the display is dropped.
void StartClickRule(int ruleMode);
void StartClickRule(int ruleMode, const std::string& prompt);

// The end of a rule: none is pending any more. If its statement has been written the prompt goes;
// otherwise StatusLine keeps the message.
void FinishRule(bool written);

// A click in the proof display, taken as the operand of the pending rule.
void ClickInDisplay();

}  // namespace tessaryn
