#include "rules/VariableNames.h"

#include <algorithm>

#include "rules/Operands.h"

namespace tessaryn {

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

const char* InvalidNamesText(std::size_t count) {
    return count == 1 ? "Invalid bound variable" : "Invalid list of bound variables";
}

std::vector<std::string> EnteredNames(std::size_t count) {
    std::vector<std::string> names;
    const bool isList =
        ParseTable.size() == 2 * count && (count == 1 || Root(ParseTable).Rule == Node::Ntuple);
    for (std::size_t i = 1; isList && i <= count; ++i) {
        if (ParseTable[i].Rule != Node::Atom) return {};
        names.push_back(ParseTable[i].Name);
    }
    return names;
}

std::string ReplaceNames(std::string text, const TokenList& tokens,
                         const std::vector<std::string>& oldNames,
                         const std::vector<std::string>& newNames) {
    // From the right, so that the positions to the left stay valid.
    for (auto token = tokens.rbegin(); token != tokens.rend(); ++token) {
        const auto found = std::find(oldNames.begin(), oldNames.end(), token->Token);
        if (found == oldNames.end()) continue;
        text.replace(static_cast<std::size_t>(token->Position - 1), token->Token.size(),
                     newNames[static_cast<std::size_t>(found - oldNames.begin())]);
    }
    return text;
}

}  // namespace tessaryn
