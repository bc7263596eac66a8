#include "expr/Building.h"

#include <iterator>
#include <utility>

#include "expr/Kind.h"

namespace tessaryn {

namespace {

struct Builder {
    TokenList& tokens;
    NodeList& nodes;
    std::string& error;
    int& errorPos;
    std::vector<int> sameNameBehind;  // by token: the next one of the same name, 0 none
    std::vector<int> firstUse;        // by leaf: its first token
    std::vector<int> lastUse;         // by leaf: the last token that the walk has passed
};

int LastToken(const Builder& b) {
    return static_cast<int>(b.tokens.size()) - 1;
}
char SignAt(const Builder& b, int token) {
    return b.tokens[token].Token[0];
}
int NodeAt(const Builder& b, int token) {
    return b.tokens[token].DPtr;
}
int RuleAt(const Builder& b, int token) {
    return b.nodes[NodeAt(b, token)].Rule;
}

void Fail(Builder& b, std::string message, int token) {
    b.error = std::move(message);
    b.errorPos = b.tokens[token].Position;
}

// Appends the node of the group that closes at k.
void AddNode(Builder& b, int k, int rule, int ptr1, int ptr2) {
    const int node = static_cast<int>(b.nodes.size());
    ParseRec& record = b.nodes.emplace_back();
    record.Rule = rule;
    record.Ptr1 = ptr1;
    record.Ptr2 = ptr2;
    b.tokens[k].DPtr = b.tokens[b.tokens[k].TPtr].DPtr = node;
}

void BuildANeg(Builder& b, int k) {
    const int o = b.tokens[k].TPtr;
    if (NodeAt(b, o + 2) < 1) return Fail(b, "2. Expecting algebraic expression after _", o + 1);
    if (!IsAlgebraicOrNtuple(RuleAt(b, o + 2)))
        return Fail(b, "1. Expecting algebraic expression or n-tuple after _", o + 1);
    AddNode(b, k, Node::ANeg, NodeAt(b, o + 2), 0);
}

void BuildLNeg(Builder& b, int k) {
    const int o = b.tokens[k].TPtr;
    if (NodeAt(b, o + 2) < 1) return Fail(b, "22. Expecting logical expression after ~", o + 1);
    if (!IsLogical(RuleAt(b, o + 2)))
        return Fail(b, "21. Expecting logicial expression after ~", o + 1);
    AddNode(b, k, Node::LNeg, NodeAt(b, o + 2), 0);
}

// Marks the variable and its occurrences up to the token k. False at the first that is marked
// already; what was marked until then stays so.
bool MarkBound(Builder& b, int variable, int k) {
    for (int m = variable; m != 0 && m <= k; m = b.sameNameBehind[m])
        if (std::exchange(b.tokens[m].Bound, true)) return false;
    return true;
}

// The offsets are those of the written form ALL(x):body: o + 2 the bracket of the variable, o + 4
// the variable, o + 8 the body. Redundant brackets round the variable push its closing bracket to
// o + 8, which is no formula.
void BuildQuantifier(Builder& b, int k) {
    const int o = b.tokens[k].TPtr;
    const std::string& quantifier = b.tokens[o + 1].Token;
    if (RuleAt(b, o + 2) != Node::Atom) return Fail(b, "5. Expecting variable", o + 1);
    if (o + 8 > LastToken(b) || !IsLogical(RuleAt(b, o + 8)))
        return Fail(b, "3. Invalid expression on RHS of " + quantifier, o + 1);
    const int variable = NodeAt(b, o + 2);
    if (!MarkBound(b, o + 4, k)) {
        return Fail(
            b, "4. Variable " + b.nodes[variable].Name + " already quantified within its scope.",
            o + 1);
    }
    AddNode(b, k, quantifier == "ALL" ? Node::ALL : Node::EXIST, variable, NodeAt(b, o + 8));
}

// The node type of the binary operator at a token, 0 if it is none.
int BinaryRule(const Builder& b, int token) {
    const int kind = KindOf(b.tokens[token].Token);
    const bool binary = kind >= Node::Expo && kind <= Node::Elt && kind != Node::ANeg &&
                        kind != Node::LNeg && kind != Node::ALL && kind != Node::EXIST;
    return binary ? kind : 0;
}

// The operator as the messages show it.
std::string Shown(const std::string& sign) {
    return sign == "&" ? "&&" : sign == "@" ? "<epsilon>" : sign;
}

bool JoinsFormulas(int rule) {
    return rule >= Node::LAnd && rule <= Node::Iff;
}

// What is wrong with the left operand, which ends at the token end; "" if nothing is.
std::string FaultBefore(const Builder& b, int rule, int end, const std::string& shown) {
    const int operand = RuleAt(b, end);
    if (JoinsFormulas(rule))
        return IsLogical(operand) ? "" : "11. Expecting logical expression before " + shown;
    if (IsAlgebraic(operand)) return "";
    if (rule == Node::EQ) return "11. Expecting algebraic expression before = ";
    if (rule == Node::Ntuple || rule == Node::Elt) {
        const bool written = SignAt(b, end) == ')' && b.tokens[end].Position != 0;
        if (operand == Node::Ntuple && (rule == Node::Ntuple || written)) return "";
        return "10. Expecting algebraic expression before " + shown;
    }
    return "10. Expecting algebracic expression before " + shown;
}

// The operator p stands behind the group at o + 1. Behind a list without its brackets, as in
// "a,b@P", the right operand is looked at as well, and its message then wins.
void BuildBinary(Builder& b, int k) {
    const int o = b.tokens[k].TPtr;
    const int p = b.tokens[o + 1].TPtr + 1;
    const int rule = BinaryRule(b, p);
    if (rule == 0) return Fail(b, "7. Expecting binary operator", p);
    const int left = NodeAt(b, p - 1);
    const int right = NodeAt(b, p + 1);
    const std::string shown = Shown(b.tokens[p].Token);
    if (left == 0 || right == 0)
        return Fail(b, "8. Expecting expression on both sides of " + shown, p);
    if (std::string fault = FaultBefore(b, rule, p - 1, shown); !fault.empty()) {
        Fail(b, std::move(fault), p);
        const bool bareList = rule == Node::Elt && b.nodes[left].Rule == Node::Ntuple;
        if (!bareList) return;
    }
    if (JoinsFormulas(rule) && !IsLogical(b.nodes[right].Rule))
        return Fail(b, "12. Expecting logical expression after " + shown, p);
    if (!JoinsFormulas(rule) && !IsAlgebraic(b.nodes[right].Rule))
        return Fail(b, "12. Expecting algebraic expression after " + shown, p);
    AddNode(b, k, rule, left, right);
}

// The written round bracket must stand right behind the name's own wrapper: redundant brackets
// round a name make no application.
bool IsApplication(const Builder& b, int o) {
    return b.tokens[o + 1].TPtr == o + 3 && SignAt(b, o + 4) == '(' &&
           b.tokens[o + 4].Position > 0 && NodeAt(b, o + 4) > 0 && IsName(RuleAt(b, o + 1));
}

void BuildFunc(Builder& b, int k) {
    const int o = b.tokens[k].TPtr;
    if (!IsAlgebraicOrNtuple(RuleAt(b, o + 4))) {
        return Fail(b, "16. Expecting algebraic expression after " + b.tokens[o + 2].Token, o + 2);
    }
    AddNode(b, k, RuleAt(b, o + 1) == Node::Atom ? Node::Func : Node::Pred, NodeAt(b, o + 1),
            NodeAt(b, o + 4));
}

// Takes note of the name at a token. The walk passes the names from left to right.
void ListUse(Builder& b, int leaf, int token) {
    const int before = std::exchange(b.lastUse[leaf], token);
    (before == 0 ? b.firstUse[leaf] : b.sameNameBehind[before]) = token;
}

// The group that closes at k, once its own content is built. False if the walk ends here. It goes
// on behind a faulty quantifier and a group without an operand; a later message then replaces the
// first one.
bool BuildGroup(Builder& b, int k) {
    const int o = b.tokens[k].TPtr;
    if (o == k - 1) {
        Fail(b, "24. Empty brackets. Expecting expression.", k - 1);
        return false;
    }
    if (IsClosing(b.tokens[k - 1]) && b.tokens[k - 1].TPtr == o + 1) {
        b.tokens[k].DPtr = b.tokens[o].DPtr = NodeAt(b, k - 1);
        return true;
    }
    if (NodeAt(b, k) > 0) {  // so far only the brackets round a name have a node
        ListUse(b, NodeAt(b, k), k - 1);
        return true;
    }
    if (IsQuantifier(b.tokens[o + 1])) {
        BuildQuantifier(b, k);
        return true;
    }
    if (SignAt(b, o + 1) == '_') {
        BuildANeg(b, k);
    } else if (SignAt(b, o + 1) == '~') {
        BuildLNeg(b, k);
    } else if (NodeAt(b, o + 1) < 1 || o + 4 > LastToken(b)) {
        b.error = "25. Expected algebraic expression";
        b.errorPos = 0;
        return true;
    } else if (IsApplication(b, o)) {
        BuildFunc(b, k);
    } else {
        BuildBinary(b, k);
    }
    return b.error.empty();
}

// No name stands both free and bound. Leaves are numbered by their first appearance.
void CheckBound(Builder& b) {
    for (size_t leaf = 1; leaf < b.firstUse.size(); leaf++) {
        const int first = b.firstUse[leaf];
        for (int i = first; i != 0; i = b.sameNameBehind[i]) {
            if (b.tokens[i].Bound == b.tokens[first].Bound) continue;
            return Fail(b, "27. Inconsistent usage of variable " + b.nodes[leaf].Name, first);
        }
    }
}

}  // namespace

void BuildNodes(Expression& expression) {
    auto& [text, tokens, nodes, error, errorPos] = expression;
    Builder b{tokens, nodes, error, errorPos, {}, {}, {}};
    b.sameNameBehind.resize(tokens.size());
    b.firstUse.resize(nodes.size());
    b.lastUse.resize(nodes.size());
    for (int k = 1; k <= LastToken(b); k++)
        if (IsClosing(tokens[k]) && !BuildGroup(b, k)) return;
    if (nodes.size() == 1) {
        error = "26. Expecting expression.";
        errorPos = 0;
        return;
    }
    CheckBound(b);
}

}  // namespace tessaryn
