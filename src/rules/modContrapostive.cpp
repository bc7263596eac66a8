// Contra: turns one implication anywhere in a statement round, P => Q into ~Q => ~P.
//
// One click, on its =>.
#include "rules/RewriteInPlace.h"
#include "rules/Rules.h"

namespace tessaryn {

void Contrapostive() {
    RewriteInPlace("Contra needs =>", {{"=>", "~[Q] => ~[P]"}}, AfterParseError::EndRule);
}

}  // namespace tessaryn
