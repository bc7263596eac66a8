#include "inference/Conclusion.h"

#include "expr/Operands.h"
#include "expr/Same.h"

namespace tessaryn {
namespace {

bool OperandsContradict(const Expression& statement) {
    const int last = static_cast<int>(statement.tokens.size()) - 1;
    const std::string left = JoinWritten(statement, 3, TokenAt(statement, 2).TPtr - 1);
    const std::string right =
        JoinWritten(statement, TokenAt(statement, last - 1).TPtr + 1, last - 2);
    return Same("~(" + left + ")", right) || Same(left, "~(" + right + ")");
}

bool DeniesIdentity(const Expression& statement) {
    const int last = static_cast<int>(statement.tokens.size()) - 1;
    const int leftEnd = TokenAt(statement, 4).TPtr;
    return Same(JoinWritten(statement, 4, leftEnd), JoinWritten(statement, leftEnd + 2, last - 2));
}

// Puts a quantifier for each name in front of the text, the first outermost.
std::string Quantified(const char* quantifier, const std::vector<std::string>& names,
                       const std::string& text) {
    std::string prefix;
    for (const std::string& name : names) prefix += quantifier + ("(" + name) + "):";
    return prefix + text;
}

}  // namespace

bool IsContradiction(const Expression& statement) {
    const int rule = Root(statement).Rule;
    if (rule == Node::LAnd || rule == Node::Iff) return OperandsContradict(statement);
    if (rule != Node::LNeg || NodeAt(statement, RootIndex(statement) - 1).Rule != Node::EQ) {
        return false;
    }
    return DeniesIdentity(statement);
}

Outcome Conclude(const Expression& premise, const Expression& last,
                 const std::vector<std::string>& universal,
                 const std::vector<std::string>& existential) {
    if (IsContradiction(last)) {
        return Writes("~" + Quantified("EXIST", universal, "[[" + premise.text + "]]"));
    }
    std::string consequent = last.text;
    for (auto name = existential.rbegin(); name != existential.rend(); ++name) {
        consequent = "EXIST(" + *name + "):[" + consequent + "]";
    }
    const bool fits = consequent.size() + premise.text.size() < FoldedLength;
    return Writes(
        Quantified("ALL", universal,
                   "[[" + premise.text + "]" + (fits ? " => [" : "\r\n=> [") + consequent + "]]"));
}

}  // namespace tessaryn
