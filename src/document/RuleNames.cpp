#include "document/RuleNames.h"

#include <array>

namespace tessaryn {
namespace {

// In the order of their numbers, from 1. Some are no rules of statements but name what the user
// does.
constexpr std::array<const char*, RuleCount> Names = {"Premise",
                                                      "Spec",
                                                      "E Spec",
                                                      "U Spec",
                                                      "E Gen",
                                                      "U Gen",
                                                      "Conclusion",
                                                      "Delete at ref",
                                                      "Delete at sub",
                                                      "Insert",
                                                      "Quant",
                                                      "Rem DNeg",
                                                      "Ins DNeg",
                                                      "Join",
                                                      "Split",
                                                      "Detach",
                                                      "Iff-And",
                                                      "Subset",
                                                      "Imply-And",
                                                      "Contra",
                                                      "DeMorgan",
                                                      "Arb Or",
                                                      "Arb Ante",
                                                      "Arb Cons",
                                                      "Cart Prod",
                                                      "Power Set",
                                                      "Function",
                                                      "Substitute",
                                                      "Set Equality",
                                                      "Reflex",
                                                      "Sym",
                                                      "Number Axioms",
                                                      "Induction",
                                                      "Imply-Or",
                                                      "Definition",
                                                      "Cases",
                                                      "Or Not",
                                                      "Set Ops",
                                                      "Implies",
                                                      "Iff",
                                                      "Or",
                                                      "Sum",
                                                      "Prod",
                                                      "Set Insert Mode",
                                                      "Axiom",
                                                      "Rename",
                                                      "Reorder",
                                                      "Ntuple Equality",
                                                      "Pw Union",
                                                      "Arb Union",
                                                      "Choice",
                                                      "Copy",
                                                      "Fn Space",
                                                      "Fn Equality"};

}  // namespace

const char* RuleName(int number) {
    return IsRuleNumber(number) ? Names[static_cast<std::size_t>(number - 1)] : "";
}

}  // namespace tessaryn
