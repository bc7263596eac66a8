#include "inference/Subset.h"

#include <algorithm>

#include "expr/Operands.h"

namespace tessaryn {
namespace {

constexpr std::size_t SetLength = 3;  // of "Set"

// "Set", with any number of primes.
bool IsSetName(const std::string& name) {
    return name.starts_with("Set") &&
           std::all_of(name.begin() + SetLength, name.end(), [](char c) { return c == '\''; });
}

}  // namespace

Outcome SubsetFrom(const Expression& statement) {
    if (Root(statement).Rule == Node::Pred &&
        IsAlgebraic(NodeAt(statement, RootIndex(statement) - 1).Rule) &&
        IsSetName(NodeAt(statement, 1).Name)) {
        return {};
    }
    return Refused("does not say that something is a set: Subset needs Set(x), Set'(x) and so on.");
}

SetStatement ReadSetStatement(const Expression& statement) {
    const std::size_t name = NodeAt(statement, 1).Name.size();
    const std::string& text = statement.text;
    return {static_cast<int>(name - SetLength), text.substr(name + 1, text.size() - name - 2)};
}

Outcome Subset(const SetStatement& set, const std::string& subset,
               const std::vector<std::string>& variables, const Expression& criterion) {
    const std::string primes(static_cast<std::size_t>(set.primes), '\'');
    std::string text = "EXIST(" + subset + "):[Set" + primes + "(" + subset + ") & ";
    std::string element;
    for (const std::string& variable : variables) {
        text += "ALL(" + variable + "):";
        element += (element.empty() ? "" : ",") + variable;
    }
    if (set.primes > 0) element = "(" + element + ")";
    text += "[" + element + "@" + subset;
    text += set.primes > 0 && text.size() > FoldedLength ? "\r\n" : " ";
    const int root = Root(criterion).Rule;
    const bool brackets = root == Node::LAnd || root == Node::LOr;
    const std::string property = brackets ? "[" + criterion.text + "]" : criterion.text;
    return Writes(text + "<=> [" + element + "@" + set.parent + " & [" + property + "]]]]");
}

}  // namespace tessaryn
