#include "inference/Signs.h"

#include <algorithm>

#include "expr/Operands.h"

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

Outcome RewriteAt(const Expression& statement, int sign, std::initializer_list<Rewrite> rewrites,
                  const char* needs) {
    const std::string& written = TokenAt(statement, sign).Token;
    const auto* found = std::find_if(rewrites.begin(), rewrites.end(),
                                     [&](const Rewrite& row) { return row.sign == written; });
    if (found == rewrites.end()) return RefusedSign(statement, sign, needs);
    const OperandSpans operands = OperandsOf(statement, sign);
    return Writes(Splice(statement.text, operands.Whole(),
                         Fill(found->form, Cut(statement.text, operands.left),
                              Cut(statement.text, operands.right))));
}

Outcome RefusedSign(const Expression& statement, int token, const char* needs) {
    return Refused("was clicked on " + TokenAt(statement, token).Token + ": " + needs + ".");
}

}  // namespace tessaryn
