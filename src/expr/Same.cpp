#include "expr/Same.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "expr/Kind.h"
#include "expr/NameList.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"

namespace tessaryn {

namespace {

bool IsNameToken(const TokenRec& token) {
    return !token.Token.empty() && IsName(KindOf(token.Token));
}

// By token: the next one of the same name, 0 if none.
std::vector<int> LinkSameNames(const TokenList& tokens, size_t nodes) {
    std::vector<int> behind(tokens.size());
    std::vector<int> latest(nodes);  // by leaf
    for (int i = 2; i < std::ssize(tokens); i++) {
        if (!IsNameToken(tokens[i])) continue;
        const int before = std::exchange(latest[tokens[i - 1].DPtr], i);
        behind[before] = i;  // behind[0] is never read
    }
    return behind;
}

// Renames the variable of a quantifier and its occurrences in the body. No quantifier of the same
// variable lies within the body, so that each token is renamed once at most and the links hold.
void RenameQuantified(TokenList& tokens, const std::vector<int>& behind, int quantifier,
                      const std::string& newName) {
    const int end = tokens[quantifier + 7].TPtr;
    for (int i = quantifier + 3; i != 0 && i <= end; i = behind[i]) tokens[i].Token = newName;
}

// The same where the text itself has names with "#": a token that became v#1 is renamed again by a
// quantifier of a written v#1 within the scope.
void RenameByText(TokenList& tokens, int quantifier, const std::string& newName) {
    const std::string oldName = std::exchange(tokens[quantifier + 3].Token, newName);
    for (int i = quantifier + 8; i <= tokens[quantifier + 7].TPtr; i++)
        if (tokens[i].Token == oldName) tokens[i].Token = newName;
}

// "SUM" and "PROD" applied to a list: the name in its first place, if there is one, is renamed.
void RenameFirstArgument(TokenList& tokens, int name, const std::string& newName) {
    const int argument = name + 5;
    if (argument >= std::ssize(tokens)) return;
    const TokenRec& behind = tokens[name + 2];
    const bool applied = behind.Token == "(" && behind.Position > 0;
    if (applied && KindOf(tokens[argument].Token) == Node::Atom) tokens[argument].Token = newName;
}

bool BindsName(const TokenRec& token) {
    return IsQuantifier(token) || token.Token == "SUM" || token.Token == "PROD";
}

// Gives the bound variables the names v#1, v#2 ...
void RenameBound(Expression& expression) {
    TokenList& tokens = expression.tokens;
    const bool byText = expression.text.find('#') != std::string::npos;
    const std::vector<int> behind = LinkSameNames(tokens, expression.nodes.size());
    int counter = 0;
    for (int i = 1; i < std::ssize(tokens); i++) {
        if (!BindsName(tokens[i])) continue;
        const std::string newName = "v#" + std::to_string(++counter);
        if (!IsQuantifier(tokens[i])) {
            RenameFirstArgument(tokens, i, newName);
        } else if (byText) {
            RenameByText(tokens, i, newName);
        } else {
            RenameQuantified(tokens, behind, i, newName);
        }
    }
}

std::string WrittenText(const TokenList& tokens) {
    std::string text;
    for (const TokenRec& token : tokens)
        if (token.Position > 0) text += token.Token;
    return text;
}

// Replaces a parsed expression by its form with generated names. False if that does not parse.
bool Rename(Expression& expression) {
    RenameBound(expression);
    expression.text = WrittenText(expression.tokens);
    Parse(expression);
    return expression.error.empty();
}

// Renaming can do no more than tell bound variables apart: no name of the text looks like a
// generated one, no SUM or PROD binds a name, and the form grows beyond no limit.
bool KeepsItsForm(const Expression& expression) {
    return expression.text.size() < MaxSourceLength / 8 &&
           expression.text.find('#') == std::string::npos &&
           std::none_of(expression.nodes.begin(), expression.nodes.end(), [](const ParseRec& node) {
               return node.Rule == Node::Prop && (node.Name == "SUM" || node.Name == "PROD");
           });
}

// Do two trees differ in the names of bound variables at most? They are walked side by side; a
// bound leaf is known by the number of the quantifier around it, which no other of its variable
// stands in. What is still to be compared lies on a stack, so that no depth is too large.
bool SameTrees(const NodeList& a, const NodeList& b) {
    struct Pair {
        int a;
        int b;
        bool scopeEnds;  // of the variables a and b
    };
    std::vector<Pair> todo{{static_cast<int>(a.size()) - 1, static_cast<int>(b.size()) - 1, false}};
    std::vector<int> binderA(a.size());  // by leaf; 0: free
    std::vector<int> binderB(b.size());
    int quantifiers = 0;
    while (!todo.empty()) {
        const Pair pair = todo.back();
        todo.pop_back();
        const ParseRec& nodeA = a[pair.a];
        const ParseRec& nodeB = b[pair.b];
        if (pair.scopeEnds) {
            binderA[pair.a] = binderB[pair.b] = 0;
            continue;
        }
        if (nodeA.Rule != nodeB.Rule || binderA[pair.a] != binderB[pair.b]) return false;
        if (IsName(nodeA.Rule)) {
            if (binderA[pair.a] == 0 && nodeA.Name != nodeB.Name) return false;
            continue;
        }
        if (nodeA.Rule == Node::ALL || nodeA.Rule == Node::EXIST) {
            binderA[nodeA.Ptr1] = binderB[nodeB.Ptr1] = ++quantifiers;
            todo.push_back({nodeA.Ptr1, nodeB.Ptr1, true});
        } else {
            todo.push_back({nodeA.Ptr1, nodeB.Ptr1, false});
        }
        if (nodeA.Ptr2 != 0) todo.push_back({nodeA.Ptr2, nodeB.Ptr2, false});
    }
    return true;
}

}  // namespace

bool Same(const std::string& a, const std::string& b) {
    Expression first = ParseExpression(a);
    Expression second = a == b ? first : ParseExpression(b);
    if (!first.error.empty() || !second.error.empty()) return false;
    if (KeepsItsForm(first) && KeepsItsForm(second)) return SameTrees(first.nodes, second.nodes);
    return Rename(first) && Rename(second) && first.nodes == second.nodes;
}

std::string NamelessForm(const std::string& text) {
    Expression renamed = ParseExpression(text);
    return renamed.error.empty() && Rename(renamed) ? PrintExpression(renamed) : "";
}

std::string CollectFreeVars() {
    return FreeVarsOf(InHand);
}

std::string FreeVarsOf(const Expression& expression) {
    const TokenList& tokens = expression.tokens;
    const NodeList& nodes = expression.nodes;
    std::string list;
    std::vector<bool> seen(nodes.size());
    for (size_t i = 2; i < tokens.size(); i++) {
        if (!IsNameToken(tokens[i])) continue;
        const int node = tokens[i - 1].DPtr;
        if (seen[node]) continue;
        seen[node] = true;
        if (nodes[node].Rule == Node::Atom && !tokens[i].Bound) AppendName(list, tokens[i].Token);
    }
    return list;
}

}  // namespace tessaryn
