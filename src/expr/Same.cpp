#include "expr/Same.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

#include "expr/Kind.h"
#include "expr/NameList.h"
#include "expr/Parse.h"

namespace tessaryn {

namespace {

// Places in the token table by the name that stands there, ascending. A place whose token was
// renamed since may still be listed under the old name.
using Occurrences = std::unordered_map<std::string, std::vector<int>>;

bool IsNameToken(const TokenRec& token) {
    return !token.Token.empty() && IsName(KindOf(token.Token));
}

Occurrences OccurrencesIn(const TokenList& tokens) {
    Occurrences places;
    for (int i = 1; i < std::ssize(tokens); i++)
        if (IsNameToken(tokens[i])) places[tokens[i].Token].push_back(i);
    return places;
}

// Lists the places of a name that was just given to them. There are earlier ones only if the text
// itself had a name like the generated ones.
void AddPlaces(std::vector<int>& places, const std::vector<int>& added) {
    const auto middle = places.insert(places.end(), added.begin(), added.end());
    std::inplace_merge(places.begin(), middle, places.end());
}

void RenameQuantified(TokenList& tokens, Occurrences& places, int quantifier,
                      const std::string& newName) {
    const int variable = quantifier + 3;
    const int body = quantifier + 7;
    const std::string oldName = std::exchange(tokens[variable].Token, newName);
    const std::vector<int>& old = places[oldName];
    std::vector<int> renamed{variable};
    for (auto at = std::ranges::upper_bound(old, body); at != old.end() && *at <= tokens[body].TPtr;
         ++at) {
        if (tokens[*at].Token != oldName) continue;
        tokens[*at].Token = newName;
        renamed.push_back(*at);
    }
    AddPlaces(places[newName], renamed);
}

// "SUM" and "PROD" applied to a list: the name in its first place, if there is one, is renamed.
void RenameFirstArgument(TokenList& tokens, Occurrences& places, int name,
                         const std::string& newName) {
    const int argument = name + 5;
    if (argument >= std::ssize(tokens)) return;
    const TokenRec& behind = tokens[name + 2];
    const bool applied = behind.Token == "(" && behind.Position > 0;
    if (!applied || KindOf(tokens[argument].Token) != Node::Atom) return;
    tokens[argument].Token = newName;
    AddPlaces(places[newName], {argument});
}

bool BindsName(const TokenRec& token) {
    return IsQuantifier(token) || token.Token == "SUM" || token.Token == "PROD";
}

void RenameBound(TokenList& tokens) {
    if (std::ranges::none_of(tokens, BindsName)) return;
    Occurrences places = OccurrencesIn(tokens);
    int counter = 0;
    for (int i = 1; i < std::ssize(tokens); i++) {
        if (!BindsName(tokens[i])) continue;
        const std::string newName = "v#" + std::to_string(++counter);
        if (IsQuantifier(tokens[i])) {
            RenameQuantified(tokens, places, i, newName);
        } else {
            RenameFirstArgument(tokens, places, i, newName);
        }
    }
}

std::string WrittenText(const TokenList& tokens) {
    std::string text;
    for (const TokenRec& token : tokens)
        if (token.Position > 0) text += token.Token;
    return text;
}

// Parses text, replaces it by the form with generated names and parses that.
bool ParseRenamed(std::string& text, TokenList& tokens, NodeList& nodes, std::string& error,
                  int& errorPos) {
    ParseText(text, tokens, nodes, error, errorPos);
    if (!error.empty()) return false;
    RenameBound(tokens);
    text = WrittenText(tokens);
    ParseText(text, tokens, nodes, error, errorPos);
    return error.empty();
}

bool ParseRenamedGlobal(const std::string& text) {
    NewStmtText = text;
    return ParseRenamed(NewStmtText, TokenTable, ParseTable, ParseError, ParseErrorPos);
}

std::string FreeVars(const TokenList& tokens, const NodeList& nodes) {
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

}  // namespace

bool Same(const std::string& a, const std::string& b) {
    const bool identical = a == b;
    const std::string second = b;  // b may be NewStmtText itself
    if (!ParseRenamedGlobal(a)) return false;
    if (identical) return true;
    const NodeList first = std::move(ParseTable);
    return ParseRenamedGlobal(second) && first == ParseTable;
}

bool SameExpressions(const std::string& a, const std::string& b) {
    Expression first;
    Expression second;
    const auto parse = [](Expression& to, const std::string& text) {
        to.text = text;
        return ParseRenamed(to.text, to.tokens, to.nodes, to.error, to.errorPos);
    };
    return parse(first, a) && (a == b || (parse(second, b) && first.nodes == second.nodes));
}

std::string CollectFreeVars() {
    return FreeVars(TokenTable, ParseTable);
}

std::string FreeVarsOf(const Expression& expression) {
    return FreeVars(expression.tokens, expression.nodes);
}

}  // namespace tessaryn
