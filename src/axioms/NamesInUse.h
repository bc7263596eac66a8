// Which names the axioms and premises in force speak of.
#pragma once

#include <string_view>
#include <vector>

namespace tessaryn {

// Is each name free in some active line that is an open Premise, or in the second an Axiom?
bool PremisesHold(const std::vector<std::string_view>& names);
bool AxiomsOrPremisesHold(const std::vector<std::string_view>& names);

}  // namespace tessaryn
