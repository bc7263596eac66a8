// DeMorgan: exchanges one & or | anywhere in a statement, P & Q for ~[~P | ~Q] and P | Q for
// ~[~P & ~Q].
//
// One click, on the sign.
#include "rules/RewriteInPlace.h"
#include "rules/Rules.h"

namespace tessaryn {

void DeMorgan() {
    RewriteInPlace("DeMorgan needs & or |", {{"&", "~[~[P] | ~[Q]]"}, {"|", "~[~[P] & ~[Q]]"}},
                   AfterParseError::EndRule);
}

}  // namespace tessaryn
