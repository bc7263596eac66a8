// Reorder: writes a statement again with its leading universal quantifiers in another order.
//
// One click, on any active statement that begins with ALL twice or more. Then the quantifiers are
// edited in MyInputBox.
#include <algorithm>
#include <string>
#include <vector>

#include "mainwindow/ActiveStmts.h"
#include "mainwindow/MyInputBox.h"
#include "rules/Operands.h"
#include "rules/Rules.h"
#include "rules/UniversalPrefix.h"
#include "rules/modConclusion.h"

namespace tessaryn {
namespace {

constexpr const char* Needs = "Reorder needs two or more ALL at the beginning";

std::string Quantifiers(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += "ALL(" + name + "):";
    return text;
}

// Where the body of the statement begins, behind its leading universal quantifiers, 0-based.
std::size_t BodyStart() {
    const ParseRec* node = &Root(ParseTable2);
    for (std::size_t i = 1; i < ConclusionUVars.size(); ++i) {
        node = &NodeAt(ParseTable2, node->Ptr2);
    }
    return static_cast<std::size_t>(SpanOfNode(TokenTable2, node->Ptr2).start - 1);
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
        const bool isListed = std::ranges::count(ConclusionUVars, name) > 0;
        if (isListed && std::ranges::count(names, name) > 0) {
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
        if (std::ranges::count(names, name) > 0) continue;
        return "Missing bound variable '" + name + "'";
    }
    return "";
}

}  // namespace

void Reorder() {
    int line = 0;
    if (!TakeUniversalStatement(line, Needs)) return;
    if (ConclusionUVars.size() < 2) {
        return BeepAtLine(line, "begins with one ALL only: " + std::string(Needs) + ".");
    }
    EditPrefix("Reorder Quantifiers", line,
               "Rearrange quantifiers with Cut and Paste (Right Click)",
               Quantifiers(ConclusionUVars));
}

void ContinueReorder() {
    std::string fault;
    const std::vector<std::string> names =
        NamesInOrder(WithoutBlanks(MyInputBox.Text1.Text), fault);
    if (fault.empty()) fault = CheckMissing(names);
    if (!fault.empty()) {
        return RefuseEntry(fault, fault + ": put the quantifiers into any order, as in " +
                                      Quantifiers(ConclusionUVars) + ".");
    }
    WriteEdited(Quantifiers(names) + StmtText2.substr(BodyStart()));
}

}  // namespace tessaryn
