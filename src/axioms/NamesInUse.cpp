#include "axioms/NamesInUse.h"

#include <algorithm>

#include "document/ActiveLines.h"
#include "expr/NameList.h"
#include "mainwindow/RuleModes.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

template <class Counts>
bool EachIsFree(const std::vector<std::string_view>& names, Counts counts) {
    std::vector<const Statement*> stmts;
    for (const int line : ActiveLines(InsertionLimit())) {
        const Statement& stmt = StmtTable[line];
        if (counts(stmt)) stmts.push_back(&stmt);
    }
    return std::all_of(names.begin(), names.end(), [&](std::string_view name) {
        return std::any_of(stmts.begin(), stmts.end(),
                           [&](const Statement* stmt) { return HoldsName(stmt->FreeVars, name); });
    });
}

}  // namespace

bool PremisesHold(const std::vector<std::string_view>& names) {
    return EachIsFree(names, IsOpenPremise);
}

bool AxiomsOrPremisesHold(const std::vector<std::string_view>& names) {
    return EachIsFree(names, [](const Statement& stmt) {
        return stmt.Rule == Rule::Axiom || IsOpenPremise(stmt);
    });
}

}  // namespace tessaryn
