#include "expr/Parse.h"

#include <utility>

#include "expr/Bracketing.h"
#include "expr/Building.h"
#include "expr/Lex.h"

namespace tessaryn {

// The length is looked at ahead of everything, so that no long text costs anything; within it a
// fault of the tokens or of an earlier pass comes before that of a table that grows too large.
void Parse(Expression& expression) {
    auto& [text, tokens, nodes, error, errorPos] = expression;
    nodes.assign(1, {});
    if (text.size() > MaxSourceLength) {
        error = UnableToParse;
        errorPos = 0;
    } else {
        Lex(expression);
        if (error.empty() && BracketTokens(expression)) BuildNodes(expression);
    }
    if (error.empty()) return;
    tokens.assign(1, {});
    nodes.assign(1, {});
}

Expression ParseExpression(std::string text) {
    Expression result;
    result.text = std::move(text);
    Parse(result);
    return result;
}

void Parse() {
    Parse(InHand);
}

}  // namespace tessaryn
