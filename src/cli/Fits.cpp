#include "cli/Fits.h"

#include <map>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "document/ActiveLines.h"
#include "document/RuleNames.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "expr/Same.h"
#include "inference/Connectives.h"
#include "menu/Fits.h"
#include "view/InsertMode.h"

namespace tessaryn {

namespace {

using Json = nlohmann::ordered_json;

struct Line {
    int number;
    Expression statement;
};

void PrintFit(Json fit, const std::vector<std::string>& texts, std::ostream& out) {
    if (texts.empty()) return;
    fit["texts"] = texts;
    out << fit.dump() << '\n';
}

// Which of the written tokens with the same text it is, from 1 on.
int PlaceOf(const Expression& statement, int sign) {
    int place = 0;
    for (int k = 1; k <= sign; ++k) {
        const TokenRec& token = TokenAt(statement, k);
        if (token.Position != 0 && token.Token == TokenAt(statement, sign).Token) ++place;
    }
    return place;
}

void PrintOneClickFits(const Line& line, std::ostream& out) {
    ForEachFit(line.statement, [&](const Fit& fit) {
        Json told = {{"rule", RuleName(fit.row.ruleMode)}, {"line", line.number}};
        if (fit.sign > 0) {
            told["sign"] = TokenAt(line.statement, fit.sign).Token;
            told["place"] = PlaceOf(line.statement, fit.sign);
        }
        PrintFit(std::move(told), fit.texts, out);
    });
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
                 CanonicalTexts(Detach(implication.statement, line->second->statement)), out);
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
        PrintOneClickFits(line, out);
        PrintDetachments(line, byMeaning, out);
    }
}

}  // namespace tessaryn
