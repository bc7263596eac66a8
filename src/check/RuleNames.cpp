#include "check/RuleNames.h"

namespace tessaryn::check {

std::string_view RuleName(Rule rule) {
    switch (rule) {
        case Rule::Premise:
            return "Premise";
        case Rule::ESpec:
            return "E Spec";
        case Rule::USpec:
            return "U Spec";
        case Rule::EGen:
            return "E Gen";
        case Rule::Conclusion:
            return "Conclusion";
        case Rule::Quant:
            return "Quant";
        case Rule::RemDNeg:
            return "Rem DNeg";
        case Rule::Join:
            return "Join";
        case Rule::Split:
            return "Split";
        case Rule::Detach:
            return "Detach";
        case Rule::IffAnd:
            return "Iff-And";
        case Rule::Subset:
            return "Subset";
        case Rule::ImplyAnd:
            return "Imply-And";
        case Rule::Contra:
            return "Contra";
        case Rule::DeMorgan:
            return "DeMorgan";
        case Rule::ArbOr:
            return "Arb Or";
        case Rule::ArbAnte:
            return "Arb Ante";
        case Rule::ArbCons:
            return "Arb Cons";
        case Rule::CartProd:
            return "Cart Prod";
        case Rule::PowerSet:
            return "Power Set";
        case Rule::Function:
            return "Function";
        case Rule::Substitute:
            return "Substitute";
        case Rule::SetEquality:
            return "Set Equality";
        case Rule::Reflex:
            return "Reflex";
        case Rule::Sym:
            return "Sym";
        case Rule::Induction:
            return "Induction";
        case Rule::ImplyOr:
            return "Imply-Or";
        case Rule::Definition:
            return "Definition";
        case Rule::Cases:
            return "Cases";
        case Rule::OrNot:
            return "Or Not";
        case Rule::Axiom:
            return "Axiom";
        case Rule::Rename:
            return "Rename";
        case Rule::Reorder:
            return "Reorder";
        case Rule::PwUnion:
            return "Pw Union";
        case Rule::ArbUnion:
            return "Arb Union";
        case Rule::Choice:
            return "Choice";
        case Rule::Copy:
            return "Copy";
        case Rule::FnSpace:
            return "Fn Space";
        case Rule::FnEquality:
            return "Fn Equality";
    }
    return "";
}

}  // namespace tessaryn::check
