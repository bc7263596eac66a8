#include "view/NameStatus.h"

#include "document/Document.h"
#include "expr/Lex.h"
#include "expr/NameList.h"
#include "view/Display.h"

namespace tessaryn {

std::optional<NameStatus> NameStatusAt(int place) {
    const int line = ShownStmtAt(place + 1);
    if (line == 0) return std::nullopt;
    const Statement& stmt = At(line);
    const int textStart = stmt.StartStmt - ViewOffset(stmt) - 1;
    for (const TokenRec& token : LexExpression(std::string(StoredText(line))).tokens) {
        const int start = textStart + token.Position - 1;
        const int end = start + Length(token.Token);
        if (place < start || place >= end || !HoldsName(stmt.FreeVars, token.Token)) continue;
        const bool fixed = HoldsName(stmt.FixedVars, token.Token);
        return NameStatus{
            token.Token + (fixed ? " is red: when this line was written, it was in use "
                                   "ahead of the innermost open premise, or no "
                                   "premise was open."
                                 : " is green: when this line was written, it was new "
                                   "inside the innermost open premise."),
            start, end};
    }
    return std::nullopt;
}

}  // namespace tessaryn
