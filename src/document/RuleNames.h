// The rules by number, and the names that stand in annotations.
#pragma once

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

// The name written in annotations; index 1 to RuleCount.
const char* RuleName(int number);

// A rule number that has a name.
inline bool IsRuleNumber(int number) {
    return number >= 1 && number <= RuleCount;
}

}  // namespace tessaryn
