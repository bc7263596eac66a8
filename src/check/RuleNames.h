// The rules by their numbers in a file.
#pragma once

#include <string_view>

namespace tessaryn::check {

enum class Rule : int {
    Premise = 1,
    ESpec = 3,
    USpec = 4,
    EGen = 5,
    Conclusion = 7,
    Quant = 11,
    RemDNeg = 12,
    Join = 14,
    Split = 15,
    Detach = 16,
    IffAnd = 17,
    Subset = 18,
    ImplyAnd = 19,
    Contra = 20,
    DeMorgan = 21,
    ArbOr = 22,
    ArbAnte = 23,
    ArbCons = 24,
    CartProd = 25,
    PowerSet = 26,
    Function = 27,
    Substitute = 28,
    SetEquality = 29,
    Reflex = 30,
    Sym = 31,
    Induction = 33,
    ImplyOr = 34,
    Definition = 35,
    Cases = 36,
    OrNot = 37,
    Axiom = 45,
    Rename = 46,
    Reorder = 47,
    PwUnion = 49,
    ArbUnion = 50,
    Choice = 51,
    Copy = 52,
    FnSpace = 53,
    FnEquality = 54,
};

// As an annotation names it. "" for a number that no rule of this checker has.
std::string_view RuleName(Rule rule);

}  // namespace tessaryn::check
