#include "entry/TermChecks.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "document/ActiveLines.h"
#include "expr/NameList.h"
#include "expr/Parse.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

bool IsAtomToken(std::size_t k) {
    const int node = TokenTable[k - 1].DPtr;
    return TokenTable[k].Position > 0 && node != 0 &&
           ParseTable[static_cast<std::size_t>(node)].Rule == Node::Atom &&
           ParseTable[static_cast<std::size_t>(node)].Name == TokenTable[k].Token;
}

std::string CheckBoundNames(const TokenList& clicked) {
    std::unordered_set<std::string_view> bound;
    for (const TokenRec& token : clicked) {
        if (token.Bound) bound.insert(token.Token);
    }
    for (std::size_t k = 2; k < TokenTable.size(); ++k) {
        const std::string& name = TokenTable[k].Token;
        if (!IsAtomToken(k) || !bound.contains(name)) continue;
        return "Error: Bound variable '" + name + "' found in selected statement";
    }
    return "";
}

std::string FindName(EnteredTerm& term, const std::vector<int>& lines) {
    const auto found = std::find_if(lines.rbegin(), lines.rend(), [&](int line) {
        return HoldsName(StmtTable[line].FreeVars, term.text);
    });
    if (found == lines.rend()) return "'" + term.text + "' must occur in active statement";
    term.footing = *found;
    return "";
}

struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
        return std::hash<std::string_view>()(text);
    }
};

// Texts that have parsed, so that only the first search through a long proof parses it.
std::unordered_set<std::string, TextHash, std::equal_to<>> Parsing;

bool DoesParse(std::string_view text) {
    if (Parsing.contains(text)) return true;
    if (!ParseExpression(std::string(text)).error.empty()) return false;
    if (Parsing.size() >= 2 * MaxStatements) Parsing.clear();
    Parsing.emplace(text);
    return true;
}

bool IsMembership(std::string_view text) {
    return ParseExpression(std::string(text)).nodes.back().Rule == Node::Elt;
}

// A compound term must stand literally at the left of an element-of statement.
std::string FindMembership(EnteredTerm& term, const std::vector<int>& lines) {
    const std::string beginning = term.text + " @";
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        const std::string_view text = StoredText(*line);
        if (!DoesParse(text)) return "Free variable expression not found in active statement";
        if (text.starts_with(beginning) && IsMembership(text)) {
            term.footing = *line;
            return "";
        }
    }
    return "'" + term.text + "' must be an element of a set";
}

}  // namespace

std::string CheckTerm(const TokenList& clicked, EnteredTerm& term) {
    const ParseRec& root = ParseTable.back();
    if (!IsAlgebraic(root.Rule)) return "Expecting free variable expression";
    if (std::string fault = CheckBoundNames(clicked); !fault.empty()) return fault;
    term.isName = root.Rule == Node::Atom;
    term.text = term.isName ? root.Name : NewStmtText;
    const std::vector<int> lines = ActiveLines(InsertionLimit());
    return term.isName ? FindName(term, lines) : FindMembership(term, lines);
}

void ResetTermChecks() {
    Parsing.clear();
}

}  // namespace tessaryn
