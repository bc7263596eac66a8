// Rename and Reorder: write a statement again with other names for the variables of its leading
// universal quantifiers, or with these in another order.
//
// One click, on any active statement that begins with ALL, for Reorder twice or more. Then the
// names or the quantifiers are edited in MyInputBox.
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "entry/ClickPatterns.h"
#include "entry/MyInputBox.h"
#include "expr/NameList.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "inference/Quantifiers.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "rules/Rules.h"
#include "rules/VariableNames.h"
#include "rules/modConclusion.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// The click: the statement is kept as the second expression, the variables of its leading universal
// quantifiers in ConclusionUVars. False after a beep.
bool TakeUniversalStatement(int& line, Outcome (*fits)(const Expression&)) {
    if (!TakeClickedLine(line, AfterParseError::EndRule)) return false;
    if (const Outcome fit = fits(InHand); !fit.Applies()) {
        BeepRefusal(line, fit);
        return false;
    }
    Arg1Pending = line;
    Arg2Pending = 0;
    Second = InHand;
    ConclusionUVars = LeadingVariables(InHand, Node::ALL);
    return true;
}

// The end of Continue: checks the text and writes it; hides the box when all is well.
void WriteEdited(const std::string& text) {
    NewStmtText = text;
    Parse();
    if (!ParseError.empty()) return RefuseEntry(ParseError);
    if (!WriteStatement()) return ShowEntryFault(ParseError);
    RuleMode = 0;
    MyInputBox.Hide();
}

std::string WithoutBlanks(std::string entry) {
    std::erase(entry, ' ');
    return entry;
}

// The names in the first quantifiers of an entry, as many as there are variables. What stands
// behind is dropped. Nothing, and the message, if the entry is no list of quantifiers or has a name
// twice.
std::vector<std::string> NamesInOrder(const std::string& entry, std::string& fault) {
    std::vector<std::string> names;
    std::size_t p = 0;
    for (std::size_t i = 0; i < ConclusionUVars.size(); ++i) {
        const std::size_t end = entry.find("):", std::min(p + 4, entry.size()));
        if (entry.compare(p, 4, "ALL(") != 0 || end == std::string::npos) {
            fault = "Invalid list of quantifiers";
            return {};
        }
        const std::string name = entry.substr(p + 4, end - p - 4);
        const bool isListed = HoldsName(ConclusionUVars, name);
        if (isListed && HoldsName(names, name)) {
            fault = "Duplicate bound variable '" + name + "'";
            return {};
        }
        names.push_back(name);
        p = end + 2;
    }
    return names;
}

// A foreign name shows in the one that it displaced.
std::string CheckMissing(const std::vector<std::string>& names) {
    for (const std::string& name : ConclusionUVars) {
        if (HoldsName(names, name)) continue;
        return "Missing bound variable '" + name + "'";
    }
    return "";
}

void ContinueRename() {
    const std::string text =
        RenamedAsEntered(ConclusionUVars, "New bound variable already used in statement");
    if (!text.empty()) WriteEdited(text);
}

void ContinueReorder() {
    std::string fault;
    const std::vector<std::string> names =
        NamesInOrder(WithoutBlanks(MyInputBox.Text1.Text), fault);
    if (fault.empty()) fault = CheckMissing(names);
    if (!fault.empty()) {
        return RefuseEntry(fault, fault + ": put the quantifiers into any order, as in " +
                                      UniversalQuantifiers(ConclusionUVars) + ".");
    }
    WriteEdited(Reorder(Second, names).texts[0]);
}

// --- asking

std::string CaptionFor(const std::string& start, int line, const std::string& preset) {
    return start + ", Line " + std::to_string(line) + ":  " + preset;
}

void EditPrefix(BoxQuestion question) {
    AskInBox(std::move(question), [] { SetPrompt(""); });
}

}  // namespace

void Rename() {
    int line = 0;
    if (!TakeUniversalStatement(line, RenameFrom)) return;
    const std::string names = CommaList(ConclusionUVars);
    EditPrefix({CaptionFor("Rename Universal Bound Variables", line, names),
                AskForNamesText(ConclusionUVars.size()), ContinueRename, "", names});
}

void Reorder() {
    int line = 0;
    if (!TakeUniversalStatement(line, ReorderFrom)) return;
    const std::string quantifiers = UniversalQuantifiers(ConclusionUVars);
    EditPrefix({CaptionFor("Reorder Quantifiers", line, quantifiers),
                "Rearrange quantifiers with Cut and Paste (Right Click)", ContinueReorder, "",
                quantifiers});
}

}  // namespace tessaryn
