#include "rules/VariableNames.h"

#include "entry/MyInputBox.h"
#include "expr/Parse.h"
#include "inference/Quantifiers.h"

namespace tessaryn {
namespace {

// The names in the tables; nothing if the entry is no list of `count` different names.
std::vector<std::string> EnteredNames(std::size_t count) {
    std::vector<std::string> names;
    const bool isList = ParseError.empty() && ParseTable.size() == 2 * count &&
                        (count == 1 || Root(InHand).Rule == Node::Ntuple);
    for (std::size_t i = 1; isList && i <= count; ++i) {
        if (ParseTable[i].Rule != Node::Atom) return {};
        names.push_back(ParseTable[i].Name);
    }
    return names;
}

void RefuseNames(std::size_t count) {
    if (count == 1) {
        return RefuseEntry("Invalid bound variable",
                           "Enter one name that begins with a small letter or a digit.");
    }
    RefuseEntry("Invalid list of bound variables",
                "Enter " + std::to_string(count) +
                    " different names, each beginning with a small letter or a digit, separated "
                    "by commas.");
}

}  // namespace

std::string CommaList(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) list += (list.empty() ? "" : ", ") + name;
    return list;
}

std::string AskForNamesText(std::size_t count) {
    return count == 1 ? "Enter name of bound variable"
                      : "Enter names of " + std::to_string(count) +
                            " bound variables, separated by commas";
}

std::string RenamedAsEntered(const std::vector<std::string>& oldNames, const char* alreadyUsed) {
    NewStmtText = MyInputBox.Text1.Text;
    Parse();
    const std::vector<std::string> newNames = EnteredNames(oldNames.size());
    if (newNames.empty()) {
        RefuseNames(oldNames.size());
        return "";
    }
    Outcome outcome = Rename(Second, oldNames, newNames, alreadyUsed);
    if (outcome.Applies()) return outcome.texts[0];
    RefuseEntry(outcome.refusal);
    return "";
}

}  // namespace tessaryn
