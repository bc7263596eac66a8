// Which free variables are fixed: in use outside the innermost open premise.
#include <algorithm>

#include "document/Document.h"
#include "expr/NameList.h"

namespace tessaryn {
namespace {

// The innermost premise around a statement, itself included; 0 if there is none. Closed blocks
// ahead of it are jumped over.
int InnermostPremise(int stmt, const Document& document) {
    int edge = document.StmtTable.BlockEdgeUpTo(stmt);
    while (edge > 0 && IsConclusion(At(edge, document))) {
        edge = document.StmtTable.BlockEdgeUpTo(At(edge, document).Arg1 - 1);
    }
    return edge;
}

// Takes out of `names` those that occur free ahead of line `limit`, outside closed blocks.
void RemoveNamesInUse(std::vector<std::string>& names, int limit, const Document& document) {
    int i = 1;
    while (i < limit && !names.empty()) {
        const Statement& here = At(i, document);
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

std::string FixedNames(const std::string& names, int stmt, const Document& document) {
    const int limit = InnermostPremise(stmt, document);
    if (limit == 0) return names;
    const std::vector<std::string> all = NamesOf(names);
    std::vector<std::string> fresh = all;
    RemoveNamesInUse(fresh, limit, document);
    std::string fixed;
    for (const std::string& name : all) {
        if (!HoldsName(fresh, name)) AppendName(fixed, name);
    }
    return fixed;
}

}  // namespace tessaryn
