#include "inference/Connectives.h"

#include <algorithm>

#include "expr/Operands.h"
#include "expr/Same.h"
#include "inference/Signs.h"

namespace tessaryn {
namespace {

std::string Bracketed(const std::string& text) {
    return "[" + text + "]";
}

// The nodes that a chain of a connective leaning to the left holds, in the order of the text. What
// stands in brackets on the right stays together.
std::vector<int> ChainOf(const Expression& statement, int connective) {
    std::vector<int> nodes;
    int node = RootIndex(statement);
    for (; NodeAt(statement, node).Rule == connective; node = NodeAt(statement, node).Ptr1) {
        nodes.push_back(NodeAt(statement, node).Ptr2);
    }
    nodes.push_back(node);
    std::reverse(nodes.begin(), nodes.end());
    return nodes;
}

}  // namespace

// --- Join

int CommonQuantifiers(const Expression& first, const Expression& second) {
    const std::vector<std::string> a = LeadingVariables(first, Node::ALL);
    const std::vector<std::string> b = LeadingVariables(second, Node::ALL);
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return static_cast<int>(end - a.begin());
}

Outcome JoinUnderQuantifiers(const Expression& first, const Expression& second, int count) {
    // Both texts begin with the same quantifiers, up to the count-th ":".
    std::size_t colon = 0;
    for (int i = 0; i < count; ++i) colon = second.text.find(':', colon) + 1;
    return Writes(second.text.substr(0, colon) + "[[" + first.text.substr(colon) + "]&[" +
                  second.text.substr(colon) + "]]");
}

Outcome Join(const Expression& first, const Expression& second) {
    const std::string left = Bracketed(first.text);
    const std::string right = Bracketed(second.text);
    const bool fits = left.size() + right.size() <= FoldedLength;
    return Writes(left + (fits ? " & " : "\r\n& ") + right);
}

// --- Split

Outcome Split(const Expression& statement) {
    if (Root(statement).Rule != Node::LAnd) {
        return Refused("is no conjunction: Split needs & as its outermost sign.");
    }
    const NodeTexts texts(statement);
    Outcome outcome;
    for (const int node : ChainOf(statement, Node::LAnd)) outcome.texts.push_back(texts[node]);
    return outcome;
}

// --- Detach

Outcome DetachFrom(const Expression& implication) {
    if (Root(implication).Rule == Node::Imply) return {};
    return Refused("is no implication: Detach needs => as its outermost sign.");
}

Outcome Detach(const Expression& implication, const Expression& antecedent) {
    const std::string wanted = TextOfNode(implication, Root(implication).Ptr1);
    if (!Same(wanted, antecedent.text)) {
        return Refused("is not the left side of line %1, which reads " + wanted + ".");
    }
    return Writes(TextOfNode(implication, Root(implication).Ptr2));
}

// --- Cases

Outcome CasesFrom(const Expression& disjunction) {
    if (Root(disjunction).Rule == Node::LOr) return {};
    return Refused("is no disjunction: Cases needs | as its outermost sign.");
}

namespace {

struct Case {
    std::string antecedent;
    std::string consequent;
};

// The implications of a conjunction; nothing if it is none.
std::vector<Case> CasesIn(const Expression& statement) {
    if (Root(statement).Rule != Node::LAnd) return {};
    const NodeTexts texts(statement);
    std::vector<Case> cases;
    for (const int node : ChainOf(statement, Node::LAnd)) {
        const ParseRec& implication = NodeAt(statement, node);
        if (implication.Rule != Node::Imply) return {};
        cases.push_back({texts[implication.Ptr1], texts[implication.Ptr2]});
    }
    return cases;
}

}  // namespace

Outcome Cases(const Expression& disjunction, const Expression& implications) {
    const std::vector<Case> cases = CasesIn(implications);
    if (cases.empty()) {
        return Refused("is no conjunction of implications: Cases needs [P=>Q] & [R=>Q] ...");
    }
    for (const Case& c : cases) {
        if (Same(c.consequent, cases.back().consequent)) continue;
        return Refused(
            "has implications to different statements: Cases needs the same right side in all.");
    }
    const std::vector<int> disjuncts = ChainOf(disjunction, Node::LOr);
    if (disjuncts.size() != cases.size()) {
        return Refused("has " + std::to_string(cases.size()) + " cases, but line %1 has " +
                       std::to_string(disjuncts.size()) + ".");
    }
    const NodeTexts texts(disjunction);
    for (std::size_t i = cases.size(); i-- > 0;) {
        const std::string disjunct = texts[disjuncts[i]];
        if (Same(disjunct, cases[i].antecedent)) continue;
        return Refused("does not have the cases of line %1 in the same order: " +
                       cases[i].antecedent + " stands for " + disjunct + ".");
    }
    return Writes(cases.back().consequent);
}

// --- Copy, and the rules with an operand of the user's own choice

Outcome Copy(const Expression& statement) {
    return Writes(statement.text);
}

Outcome OrWithLeft(const Expression& statement, const Expression& other) {
    return Writes(Bracketed(other.text) + "|" + Bracketed(statement.text));
}

Outcome OrWithRight(const Expression& statement, const Expression& other) {
    return Writes(Bracketed(statement.text) + "|" + Bracketed(other.text));
}

Outcome ArbAnte(const Expression& statement, const Expression& other) {
    return Writes(Bracketed(other.text) + "=>" + Bracketed(statement.text));
}

Outcome ArbCons(const Expression& statement, const Expression& other) {
    return Writes("~" + Bracketed(statement.text) + "=>" + Bracketed(other.text));
}

Outcome OrNot(const Expression& other) {
    return Writes(Bracketed(other.text) + "|~" + Bracketed(other.text));
}

// --- one sign

Outcome ImplyAnd(const Expression& statement, int sign) {
    return RewriteAt(statement, sign, {{"=>", "~[[P] & ~[Q]]"}, {"&", "~[[P] => ~[Q]]"}},
                     ImplyAndNeeds);
}

Outcome ImplyOr(const Expression& statement, int sign) {
    return RewriteAt(statement, sign, {{"=>", "[~[P] | [Q]]"}, {"|", "[~[P] => [Q]]"}},
                     ImplyOrNeeds);
}

Outcome Contra(const Expression& statement, int sign) {
    return RewriteAt(statement, sign, {{"=>", "~[Q] => ~[P]"}}, ContraNeeds);
}

Outcome DeMorgan(const Expression& statement, int sign) {
    return RewriteAt(statement, sign, {{"&", "~[~[P] | ~[Q]]"}, {"|", "~[~[P] & ~[Q]]"}},
                     DeMorganNeeds);
}

// --- Iff-And

namespace {

// The two halves with the connective ahead of the second one, on a line of its own if the whole is
// long.
std::string Halves(const std::string& first, const std::string& second, std::size_t length) {
    return Bracketed(first + (length < FoldedLength ? "" : "\r\n") + second);
}

// What a statement holds besides a span.
std::size_t LengthAround(const Expression& statement, Span span) {
    return statement.text.size() - static_cast<std::size_t>(span.end - span.start);
}

Outcome SplitIff(const Expression& statement, int sign) {
    const OperandSpans operands = OperandsOf(statement, sign);
    const std::string p = Bracketed(Cut(statement.text, operands.left));
    const std::string q = Bracketed(Cut(statement.text, operands.right));
    const std::size_t length =
        2 * (p.size() + q.size()) + LengthAround(statement, operands.Whole());
    return Writes(Splice(statement.text, operands.Whole(),
                         Halves(Bracketed(p + "=>" + q), "&" + Bracketed(q + "=>" + p), length)));
}

// The implication whose bracket group begins or ends at a token; nothing if there is none.
std::vector<Case> ImplicationAt(const Expression& statement, int bracket) {
    const ParseRec& node = NodeAt(statement, TokenAt(statement, bracket).DPtr);
    if (node.Rule != Node::Imply) return {};
    return {{TextOfNode(statement, node.Ptr1), TextOfNode(statement, node.Ptr2)}};
}

Outcome MergeImplications(const Expression& statement, int sign) {
    const std::vector<Case> left = ImplicationAt(statement, sign - 1);
    const std::vector<Case> right = ImplicationAt(statement, sign + 1);
    if (left.empty() || right.empty()) {
        return Refused("has no implication on each side of this &: " + std::string(IffAndNeeds) +
                       ".");
    }
    const auto& [p, q] = left[0];
    if (!Same(p, right[0].consequent) || !Same(q, right[0].antecedent)) {
        return Refused("has implications beside this & that are no converses: " +
                       std::string(IffAndNeeds) + ".");
    }
    const Span whole = OperandsOf(statement, sign).Whole();
    const std::size_t length = p.size() + q.size() + LengthAround(statement, whole);
    return Writes(
        Splice(statement.text, whole, Halves(Bracketed(p), "<=>" + Bracketed(q), length)));
}

}  // namespace

Outcome IffAnd(const Expression& statement, int sign) {
    const std::string& written = TokenAt(statement, sign).Token;
    if (written == "<=>") return SplitIff(statement, sign);
    if (written == "&") return MergeImplications(statement, sign);
    return RefusedSign(statement, sign, IffAndNeeds);
}

// --- Rem DNeg

namespace {

// The ~ of the negation whose bracket group, with written brackets around it, begins at a token.
int SignOfNegation(const Expression& statement, int bracket) {
    while (TokenAt(statement, bracket).Token != "~") ++bracket;
    return bracket;
}

Span OperandOfNegation(const Expression& statement, int sign) {
    return WrittenSpan(statement, sign + 1, TokenAt(statement, sign + 1).TPtr);
}

}  // namespace

Outcome RemDNeg(const Expression& statement, int sign) {
    if (TokenAt(statement, sign).Token != "~") return RefusedSign(statement, sign, RemDNegNeeds);
    if (NodeAt(statement, TokenAt(statement, sign + 1).DPtr).Rule != Node::LNeg) {
        return Refused("has no second ~ under this one: " + std::string(RemDNegNeeds) + ".");
    }
    const Span whole = {TokenAt(statement, sign).Position, OperandOfNegation(statement, sign).end};
    const Span operand = OperandOfNegation(statement, SignOfNegation(statement, sign + 1));
    return Writes(Splice(statement.text, whole, Cut(statement.text, operand)));
}

}  // namespace tessaryn
