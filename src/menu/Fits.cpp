#include "menu/Fits.h"

#include "expr/Operands.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"

namespace tessaryn {

void ForEachFit(const Expression& statement, const std::function<void(const Fit&)>& found) {
    const auto offer = [&](const ClickRow& row, int sign, const Outcome& outcome) {
        std::vector<std::string> texts = CanonicalTexts(outcome);
        if (!texts.empty()) found({row, sign, std::move(texts)});
    };
    for (const ClickRow& row : ClickTable()) {
        if (const auto* line = std::get_if<LineClick>(&row.click)) {
            offer(row, 0, line->infer(statement));
        } else if (const auto* click = std::get_if<SignClick>(&row.click)) {
            for (int k = 1; k < static_cast<int>(statement.tokens.size()); ++k) {
                if (TokenAt(statement, k).Position == 0) continue;
                offer(row, k, click->infer(statement, k));
            }
        }
    }
}

std::vector<std::string> CanonicalTexts(const Outcome& outcome) {
    if (!outcome.Applies()) return {};
    std::vector<std::string> texts;
    for (const std::string& text : outcome.texts) {
        const Expression parsed = ParseExpression(text);
        if (!parsed.error.empty()) return {};
        texts.push_back(PrintExpression(parsed));
    }
    return texts;
}

}  // namespace tessaryn
