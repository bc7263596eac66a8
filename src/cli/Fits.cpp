#include "cli/Fits.h"

#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "document/ActiveLines.h"
#include "document/RuleNames.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "inference/Connectives.h"
#include "menu/ClickTable.h"
#include "view/InsertMode.h"

namespace tessaryn {

namespace {

using Json = nlohmann::ordered_json;

struct Line {
    int number;
    Expression statement;
};

// The texts as the writer would bring them into the proof; nothing if one of them does not parse.
std::optional<std::vector<std::string>> Canonical(const Outcome& outcome) {
    std::vector<std::string> texts;
    for (const std::string& text : outcome.texts) {
        const Expression parsed = ParseExpression(text);
        if (!parsed.error.empty()) return std::nullopt;
        texts.push_back(PrintExpression(parsed));
    }
    return texts;
}

void PrintFit(Json fit, const Outcome& outcome, std::ostream& out) {
    if (!outcome.Applies()) return;
    const auto texts = Canonical(outcome);
    if (!texts) return;
    fit["texts"] = *texts;
    out << fit.dump() << '\n';
}

void PrintSignFits(const char* rule, const SignClick& click, const Line& line, std::ostream& out) {
    std::map<std::string, int> places;  // of each token so far
    for (int k = 1; k < static_cast<int>(line.statement.tokens.size()); ++k) {
        const TokenRec& token = TokenAt(line.statement, k);
        if (token.Position == 0) continue;
        const int place = ++places[token.Token];
        PrintFit({{"rule", rule}, {"line", line.number}, {"sign", token.Token}, {"place", place}},
                 click.infer(line.statement, k), out);
    }
}

// The active lines by what they say, up to the names of bound variables.
using LinesByMeaning = std::multimap<std::string, const Line*>;

void PrintDetachments(const Line& implication, const LinesByMeaning& lines, std::ostream& out) {
    if (!DetachFrom(implication.statement).Applies()) return;
    const std::string antecedent =
        TextOfNode(implication.statement, Root(implication.statement).Ptr1);
    const auto [first, last] = lines.equal_range(NamelessForm(antecedent));
    for (auto line = first; line != last; ++line) {
        PrintFit({{"rule", RuleName(Rule::Detach)},
                  {"line", implication.number},
                  {"second", line->second->number}},
                 Detach(implication.statement, line->second->statement), out);
    }
}

}  // namespace

void PrintFits(int onlyLine, std::ostream& out) {
    std::vector<Line> lines;
    for (const int number : ActiveLines(InsertionLimit())) {
        Expression statement = ParseExpression(StmtText(number));
        if (statement.error.empty()) lines.push_back({number, std::move(statement)});
    }
    LinesByMeaning byMeaning;
    for (const Line& line : lines) byMeaning.emplace(NamelessForm(line.statement.text), &line);
    for (const Line& line : lines) {
        if (onlyLine > 0 && line.number != onlyLine) continue;
        for (const ClickRow& row : ClickTable()) {
            const char* rule = RuleName(row.ruleMode);
            if (const auto* click = std::get_if<LineClick>(&row.click)) {
                PrintFit({{"rule", rule}, {"line", line.number}}, click->infer(line.statement),
                         out);
            } else if (const auto* sign = std::get_if<SignClick>(&row.click)) {
                PrintSignFits(rule, *sign, line, out);
            }
        }
        PrintDetachments(line, byMeaning, out);
    }
}

}  // namespace tessaryn
