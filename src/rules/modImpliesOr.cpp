// Imply-Or: exchanges one => or | anywhere in a statement, P => Q for ~P | Q and P | Q for ~P => Q.
//
// One click, on the sign.
#include "rules/RewriteInPlace.h"
#include "rules/Rules.h"

namespace tessaryn {

void ImpliesOr() {
    RewriteInPlace("Imply-Or needs => or |", {{"=>", "[~[P] | [Q]]"}, {"|", "[~[P] => [Q]]"}},
                   AfterParseError::StayPending);
}

}  // namespace tessaryn
