#include "inference/Induction.h"

#include <algorithm>

#include "expr/Operands.h"

namespace tessaryn {
namespace {

// The property of a term.
std::string PropertyOf(const Expression& property, const std::string& variable,
                       const std::string& term) {
    const std::string text = ReplaceNames(property, {variable}, {term});
    const int root = Root(property).Rule;
    return root >= Node::LAnd && root <= Node::Iff ? "[" + text + "]" : text;
}

}  // namespace

Outcome Induction(const Expression& property, const std::string& variable) {
    const std::string ofVariable = PropertyOf(property, variable, variable);
    const std::string head = "ALL(" + variable + "):[" + variable + "@n";
    return Writes(PropertyOf(property, variable, "1") + "\r\n& " + head + "&" + ofVariable + "=>" +
                  PropertyOf(property, variable, "(" + variable + "+1)") + "]\r\n=> " + head +
                  "=>" + ofVariable + "]");
}

bool BindsOne(const Expression& property) {
    return std::any_of(property.tokens.begin(), property.tokens.end(),
                       [](const TokenRec& token) { return token.Bound && token.Token == "1"; });
}

}  // namespace tessaryn
