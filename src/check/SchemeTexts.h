// The axioms of the menus as they are known outside this program, each as a text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/RuleNames.h"

namespace tessaryn::check {

constexpr int GreatestOrder = 99;
constexpr Rule SetAxiomRules[] = {Rule::CartProd,    Rule::PowerSet, Rule::Function,
                                  Rule::SetEquality, Rule::PwUnion,  Rule::ArbUnion,
                                  Rule::Choice,      Rule::FnSpace,  Rule::FnEquality};

// The set axiom of a rule for sets or functions of order n; "" if the rule has none of that order.
// An axiom without an order has order 1.
std::string SetAxiomText(Rule rule, int n);

struct DefinitionText {
    std::string_view sign;
    std::string_view text;
};
const std::vector<DefinitionText>& DefinitionTexts();

struct AxiomGroup {
    std::string_view name;
    std::vector<std::string_view> texts;
};
const std::vector<AxiomGroup>& AxiomGroups();

}  // namespace tessaryn::check
