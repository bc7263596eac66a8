#include "expr/Parse.h"

#include <utility>

#include "expr/Bracketing.h"
#include "expr/Building.h"
#include "expr/Lex.h"

namespace tessaryn {

// The length is looked at ahead of everything, so that no long text costs anything; within it a
// fault of the tokens or of an earlier pass comes before that of a table that grows too large.
void ParseText(const std::string& text, TokenList& tokens, NodeList& nodes, std::string& error,
               int& errorPos) {
    nodes.assign(1, {});
    if (text.size() > MaxSourceLength) {
        error = UnableToParse;
        errorPos = 0;
    } else {
        Lex(text, tokens, error, errorPos);
        if (error.empty() && BracketTokens(tokens, nodes, error, errorPos))
            BuildNodes(tokens, nodes, error, errorPos);
    }
    if (error.empty()) return;
    tokens.assign(1, {});
    nodes.assign(1, {});
}

Expression ParseExpression(std::string text) {
    Expression result;
    result.text = std::move(text);
    ParseText(result.text, result.tokens, result.nodes, result.error, result.errorPos);
    return result;
}

void Parse() {
    ParseText(NewStmtText, TokenTable, ParseTable, ParseError, ParseErrorPos);
}

}  // namespace tessaryn
