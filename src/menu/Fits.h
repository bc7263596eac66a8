// Which rules take a statement as it stands, by what their clicks infer.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "expr/Expression.h"
#include "menu/ClickTable.h"

namespace tessaryn {

// A rule that would write something at one click.
struct Fit {
    const ClickRow& row;
    int sign;                        // the token to click; 0: anywhere on the line
    std::vector<std::string> texts;  // what it would write, in canonical form
};

// Hands over the rules that take a statement without asking for an entry or another line: in the
// order of the click table, and of each in that of the signs.
void ForEachFit(const Expression& statement, const std::function<void(const Fit&)>& found);

// The texts as the writer would bring them into the proof; none if the rule does not apply, or one
// of them does not parse.
std::vector<std::string> CanonicalTexts(const Outcome& outcome);

}  // namespace tessaryn
