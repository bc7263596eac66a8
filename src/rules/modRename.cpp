// Rename: writes a statement again with other names for the variables of its leading universal
// quantifiers.
//
// One click, on any active statement that begins with ALL. Then the names are edited in MyInputBox.
#include <string>
#include <vector>

#include "expr/Parse.h"
#include "expr/Same.h"
#include "mainwindow/MyInputBox.h"
#include "rules/Operands.h"
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
    const std::size_t count = ConclusionUVars.size();
    NewStmtText = MyInputBox.Text1.Text;
    Parse();
    if (!ParseError.empty()) return RefuseEntry(InvalidNamesText(count));
    const std::vector<std::string> newNames = EnteredNames(count);
    if (newNames.empty()) return RefuseEntry(InvalidNamesText(count));
    const std::string text = ReplaceNames(StmtText2, TokenTable2, ConclusionUVars, newNames);
    if (!Same(StmtText2, text)) {
        return RefuseEntry("New bound variable already used in statement");
    }
    WriteEdited(text);
}

}  // namespace tessaryn
