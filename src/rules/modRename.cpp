// Rename: writes a statement again with other names for the variables of its leading universal
// quantifiers.
//
// One click, on any active statement that begins with ALL. Then the names are edited in MyInputBox.
#include <string>

#include "rules/Rules.h"
#include "rules/UniversalPrefix.h"
#include "rules/VariableNames.h"
#include "rules/modConclusion.h"

namespace tessaryn {

void Rename() {
    int line = 0;
    if (!TakeUniversalStatement(line, "Rename needs ALL as its outermost sign")) return;
    EditPrefix("Rename Universal Bound Variables", line, AskForNamesText(ConclusionUVars.size()),
               CommaList(ConclusionUVars));
}

void ContinueRename() {
    const std::string text =
        RenamedAsEntered(ConclusionUVars, "New bound variable already used in statement");
    if (!text.empty()) WriteEdited(text);
}

}  // namespace tessaryn
