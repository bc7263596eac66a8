#include "inference/Equality.h"

#include <algorithm>
#include <utility>

#include "expr/Occurrences.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "inference/Signs.h"

namespace tessaryn {

Outcome Reflex(const Expression& term) {
    const bool isName = Root(term).Rule == Node::Atom;
    const std::string& text = isName ? Root(term).Name : term.text;
    return Writes(text + "=" + text);
}

Outcome Sym(const Expression& statement, int sign) {
    if (TokenAt(statement, sign).Token != "=") return RefusedSign(statement, sign, SymNeeds);
    const OperandSpans sides = OperandsOf(statement, sign);
    return Writes(Splice(statement.text, sides.Whole(),
                         Cut(statement.text, sides.right) + "=" + Cut(statement.text, sides.left)));
}

Outcome SubstituteFrom(const Expression& equation) {
    if (Root(equation).Rule == Node::EQ) return {};
    return Refused("is no equation: Substitute needs = as its outermost sign.");
}

EquationSides SidesOf(const Expression& equation, int clickedToken) {
    const int sign =
        std::find_if(equation.tokens.begin(), equation.tokens.end(), [](const TokenRec& token) {
            return token.Token == "=";
        })->Position;
    // Without the blanks beside the sign, which is one byte long.
    const auto at = static_cast<std::size_t>(sign - 1);
    std::string left = equation.text.substr(0, at);
    std::string right = equation.text.substr(at + 1);
    left.erase(left.find_last_not_of(' ') + 1);
    right.erase(0, right.find_first_not_of(' '));
    if (TokenAt(equation, clickedToken).Position > sign) return {right, left};
    return {left, right};
}

std::string InBracketsIfNeeded(const Expression& term) {
    const int rule = Root(term).Rule;
    const bool closed = rule == Node::Atom || rule == Node::Ntuple || rule == Node::Func;
    return closed ? term.text : "(" + term.text + ")";
}

std::string FitTogether(const Expression& statement, const std::string& equation) {
    return ParseExpression("[" + statement.text + "]&[" + equation + "]").error;
}

Outcome SubstituteIn(const Expression& statement, const Expression& target) {
    const std::vector<bool> same = NodesThatAre(target.nodes, statement.nodes);
    if (std::find(same.begin(), same.end(), true) != same.end()) return {};
    return Refused("does not hold " + target.text +
                   ": click a statement in which it can be replaced.");
}

}  // namespace tessaryn
