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

// Gives the bound variables the names v#1, v#2 ... False if there is nothing that could bind one.
bool RenameBound(Expression& expression) {
    TokenList& tokens = expression.tokens;
    if (std::none_of(tokens.begin(), tokens.end(), BindsName)) return false;
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
    return true;
}

std::string WrittenText(const TokenList& tokens) {
    std::string text;
    for (const TokenRec& token : tokens)
        if (token.Position > 0) text += token.Token;
    return text;
}

// Parses the text, replaces it by the form with generated names and parses that. With nodesOnly the
// second parse is left out where it would build the same nodes.
bool ParseRenamed(Expression& expression, std::string text, bool nodesOnly) {
    expression.text = std::move(text);
    Parse(expression);
    if (!expression.error.empty()) return false;
    if (!RenameBound(expression) && nodesOnly) return true;
    expression.text = WrittenText(expression.tokens);
    Parse(expression);
    return expression.error.empty();
}

}  // namespace

bool Same(const std::string& a, const std::string& b) {
    if (a == b) return ParseRenamed(InHand, b, false);
    std::string second = b;  // b may be NewStmtText itself
    if (!ParseRenamed(InHand, a, true)) return false;
    const NodeList first = std::move(InHand.nodes);
    return ParseRenamed(InHand, std::move(second), false) && first == InHand.nodes;
}

bool SameExpressions(const std::string& a, const std::string& b) {
    Expression first;
    Expression second;
    return ParseRenamed(first, a, true) &&
           (a == b || (ParseRenamed(second, b, true) && first.nodes == second.nodes));
}

std::string NamelessForm(const std::string& text) {
    Expression renamed;
    return ParseRenamed(renamed, text, false) ? PrintExpression(renamed) : "";
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
