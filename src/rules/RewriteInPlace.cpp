#include "rules/RewriteInPlace.h"

#include <algorithm>
#include <string>

#include "document/PutStmt.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"

namespace tessaryn {
namespace {

std::string Fill(const std::string& form, const std::string& p, const std::string& q) {
    std::string text;
    for (const char c : form) {
        if (c == 'P') {
            text += p;
        } else if (c == 'Q') {
            text += q;
        } else {
            text += c;
        }
    }
    return text;
}

}  // namespace

void RewriteInPlace(const char* needs, const std::vector<Rewrite>& rewrites,
                    AfterParseError after) {
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, needs)) return;
    const std::string& sign = TokenAt(TokenTable, token).Token;
    const auto found = std::find_if(rewrites.begin(), rewrites.end(),
                                    [&](const Rewrite& row) { return row.sign == sign; });
    if (found == rewrites.end()) return BeepAtToken(line, token, needs);
    const OperandSpans operands = OperandsOf(TokenTable, token);
    NewStmtText =
        Splice(StmtText2, {operands.left.start, operands.right.end},
               Fill(found->form, Cut(StmtText2, operands.left), Cut(StmtText2, operands.right)));
    if (ParseOrReport()) return FinishRule(WriteStatement());
    if (after == AfterParseError::EndRule) RuleMode = 0;
}

}  // namespace tessaryn
