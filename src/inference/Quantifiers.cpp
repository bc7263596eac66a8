#include "inference/Quantifiers.h"

#include "expr/NameList.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "expr/Same.h"
#include "inference/Signs.h"

namespace tessaryn {
namespace {

bool IsQuantifierNode(const ParseRec& node) {
    return node.Rule == Node::ALL || node.Rule == Node::EXIST;
}

Expression Body(const Expression& statement) {
    return ParseExpression(TextOfNode(statement, Root(statement).Ptr2));
}

const std::string& LeadingVariable(const Expression& statement) {
    return NodeAt(statement, Root(statement).Ptr1).Name;
}

Outcome RefusedPrefix(const char* begins, const char* needs) {
    return Refused(std::string(begins) + ": " + needs + ".");
}

}  // namespace

// --- Specify

Outcome SpecifyFrom(const Expression& statement) {
    if (IsQuantifierNode(Root(statement))) return {};
    return Refused(
        "does not begin with a quantifier over the whole of it: Specify needs ALL or EXIST as its "
        "outermost sign.");
}

Outcome Specify(const Expression& statement, const Expression& term) {
    const bool isName = Root(term).Rule == Node::Atom;
    const std::string replacement = isName ? Root(term).Name : "(" + term.text + ")";
    return Writes(ReplaceNames(Body(statement), {LeadingVariable(statement)}, {replacement}));
}

bool BindsSomething(const Expression& statement) {
    return HoldsName(FreeVarsOf(Body(statement)), LeadingVariable(statement));
}

bool BindsInside(const Expression& statement, const std::string& name) {
    for (int n = RootIndex(statement) - 1; n >= 1; --n) {
        const ParseRec& node = NodeAt(statement, n);
        if (IsQuantifierNode(node) && NodeAt(statement, node.Ptr1).Name == name) return true;
    }
    return false;
}

// --- Quant

Outcome Quant(const Expression& statement, int sign) {
    const TokenRec& keyword = TokenAt(statement, sign);
    if (keyword.Token != "ALL" && keyword.Token != "EXIST") {
        return RefusedSign(statement, sign, QuantNeeds);
    }
    const char* dual = keyword.Token == "ALL" ? "~EXIST" : "~ALL";
    const Span variable = WrittenSpan(statement, sign + 1, sign + 6);  // "(x):"
    return Writes(Splice(statement.text, {keyword.Position, variable.end},
                         dual + Cut(statement.text, variable) + "~"));
}

// --- E Gen

Outcome ExistGen(const std::string& replaced, const std::string& variable) {
    return Writes("EXIST(" + variable + "):[" + replaced + "]");
}

// --- Rename

Outcome RenameFrom(const Expression& statement) {
    if (Root(statement).Rule == Node::ALL) return {};
    return RefusedPrefix("does not begin with ALL over the whole of it",
                         "Rename needs ALL as its outermost sign");
}

Outcome Rename(const Expression& statement, const std::vector<std::string>& oldNames,
               const std::vector<std::string>& newNames, const char* alreadyUsed) {
    std::string renamed = ReplaceNames(statement, oldNames, newNames);
    if (!Same(statement.text, renamed)) return Refused(alreadyUsed);
    return Writes(std::move(renamed));
}

// --- Reorder

Outcome ReorderFrom(const Expression& statement) {
    constexpr const char* needs = "Reorder needs two or more ALL at the beginning";
    if (Root(statement).Rule != Node::ALL) {
        return RefusedPrefix("does not begin with ALL over the whole of it", needs);
    }
    if (LeadingVariables(statement, Node::ALL).size() > 1) return {};
    return RefusedPrefix("begins with one ALL only", needs);
}

std::string UniversalQuantifiers(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += "ALL(" + name + "):";
    return text;
}

Outcome Reorder(const Expression& statement, const std::vector<std::string>& names) {
    const ParseRec* innermost = &Root(statement);
    for (std::size_t i = 1; i < names.size(); ++i) innermost = &NodeAt(statement, innermost->Ptr2);
    const int body = SpanOfNode(statement, innermost->Ptr2).start;
    return Writes(UniversalQuantifiers(names) +
                  statement.text.substr(static_cast<std::size_t>(body - 1)));
}

}  // namespace tessaryn
