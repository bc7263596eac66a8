// Which free variables are fixed: in use outside the innermost open premise.
#include <algorithm>

#include "document/Document.h"
#include "expr/NameList.h"
#include "view/Display.h"

namespace tessaryn {
namespace {

// The innermost premise around a statement, itself included; 0 if there is none. Closed blocks
// ahead of it are jumped over.
int InnermostPremise(int stmt) {
    int edge = StmtTable.BlockEdgeUpTo(stmt);
    while (edge > 0 && IsConclusion(At(edge))) {
        edge = StmtTable.BlockEdgeUpTo(At(edge).Arg1 - 1);
    }
    return edge;
}

// Takes out of `names` those that occur free ahead of line `limit`, outside closed blocks.
void RemoveNamesInUse(std::vector<std::string>& names, int limit) {
    int i = 1;
    while (i < limit && !names.empty()) {
        const Statement& here = At(i);
        if (IsClosedPremise(here) && here.Arg1 < limit) {
            i = here.Arg1;
        } else {
            std::erase_if(names,
                          [&](const std::string& name) { return HoldsName(here.FreeVars, name); });
            ++i;
        }
    }
}

}  // namespace

std::string FixedNames(const std::string& names, int stmt) {
    const int limit = InnermostPremise(stmt);
    if (limit == 0) return names;
    const std::vector<std::string> all = NamesOf(names);
    std::vector<std::string> fresh = all;
    RemoveNamesInUse(fresh, limit);
    std::string fixed;
    for (const std::string& name : all) {
        if (std::find(fresh.begin(), fresh.end(), name) == fresh.end()) AppendName(fixed, name);
    }
    return fixed;
}

}  // namespace tessaryn
