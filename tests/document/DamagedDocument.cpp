#include "document/DamagedDocument.h"

#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "document/Document.h"

namespace tessaryn {
namespace {

// Makes the Conclusions of two blocks, one inside the other, change places.
void CrossBlocks() {
    for (int outer = 1; outer <= StmtCount; ++outer) {
        if (!IsClosedPremise(At(outer))) continue;
        for (int inner = outer + 1; inner < At(outer).Arg1; ++inner) {
            if (!IsClosedPremise(At(inner))) continue;
            std::swap(EditAt(At(outer).Arg1).Arg1, EditAt(At(inner).Arg1).Arg1);
            return std::swap(EditAt(outer).Arg1, EditAt(inner).Arg1);
        }
    }
}

void DamageNumber(Statement& stmt, const RandomNumber& random) {
    int* const numbers[] = {&stmt.Rule,           &stmt.Arg1,      &stmt.Arg2,    &stmt.StartLine,
                            &stmt.EndUserComment, &stmt.StartStmt, &stmt.EndStmt, &stmt.StartRule,
                            &stmt.EndRule,        &stmt.NewNumber};
    const std::size_t which = random(std::size(numbers));
    const int change = static_cast<int>(random(5)) - 2;
    *numbers[which] += change;
    if (random(2) == 0) *numbers[(which + 1) % std::size(numbers)] += change;
}

}  // namespace

void DamageDocument(const RandomNumber& random) {
    Statement& stmt = EditAt(1 + static_cast<int>(random(static_cast<std::size_t>(StmtCount))));
    KeptText* const lists[] = {&stmt.SpecName, &stmt.FreeVars, &stmt.FixedVars, &stmt.SpareVars};
    constexpr const char* names[] = {"", " ", "x", " x ", " y x u ", "\xC3", "\xE2\x82\xAC", "  "};
    constexpr std::string_view bytes = "\t\n\r4@\xA6\xC3 (P~";
    switch (random(6)) {
        case 0:
            return CrossBlocks();
        case 1:
            *lists[random(std::size(lists))] = names[random(std::size(names))];
            break;
        case 2:
            stmt.Flagged = !stmt.Flagged;
            break;
        case 3:
            return ProofText.Replace(random(ProofText.size()), 1,
                                     bytes.substr(random(bytes.size()), 1));
        default:
            DamageNumber(stmt, random);
    }
}

}  // namespace tessaryn
