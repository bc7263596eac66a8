#include "mainwindow/EntryChecks.h"

#include <algorithm>

#include "document/Statement.h"
#include "expr/Expression.h"
#include "expr/NameList.h"
#include "expr/Same.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/RuleModes.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

const Statement& At(int number) {
    return StmtTable[static_cast<std::size_t>(number)];
}

std::string Line(int number) {
    return std::to_string(number);
}

bool IsIntroducedByESpec(const std::string& name, int line) {
    return At(line).Rule == Rule::ESpec && At(line).SpecName == name;
}

bool IsIntroducedByPremise(const std::string& name, int line) {
    return At(line).Rule == Rule::Premise && IsGreen(name, line);
}

// Is the introduction of a green name of line `line` found at or behind `first`? Closed blocks are
// stepped over.
bool IntroductionIsFound(const std::string& name, int line, int first) {
    int j = line;
    while (j >= first) {
        if (IsConclusion(At(j))) {
            j = At(j).Arg1;
            if (j < first) return false;
        }
        if (IsIntroducedByPremise(name, j) || IsIntroducedByESpec(name, j)) return true;
        --j;
    }
    return false;
}

std::string CheckEntryAgainstLaterLines() {
    for (const std::string& name : FreeNames()) {
        for (int j = InsertLine; j <= StmtCount; ++j) {
            if (IsIntroducedByESpec(name, j)) {
                return "Variable '" + name + "' is introduced by E Spec on line " + Line(j) +
                       ". Consider using another name.";
            }
            if (IsIntroducedByPremise(name, j)) {
                return "Variable '" + name + "' was introduced by Premise on line " + Line(j) +
                       ". Consider using another name.";
            }
        }
    }
    return "";
}

// Every green name of a later line must still find its introduction behind the insertion.
std::string CheckLaterLines() {
    for (int i = InsertLine; i <= StmtCount; ++i) {
        for (const std::string& name : NamesOf(At(i).FreeVars)) {
            if (!IsGreen(name, i) || IntroductionIsFound(name, i, InsertLine)) continue;
            return "Inconsistent usage of variable '" + name + "' on line " + Line(i) +
                   ". Consider deleting that line.";
        }
    }
    return "";
}

}  // namespace

std::string ForbiddenCharacter(const std::string& entry) {
    return entry.find('#') == std::string::npos ? "" : "Invalid character '#'";
}

std::string ForbiddenName() {
    for (const TokenRec& token : TokenTable) {
        if (token.Token == "SUM" || token.Token == "PROD") {
            return "Invalid name '" + token.Token + "'";
        }
    }
    return "";
}

bool RootIsLogical() {
    return IsLogical(ParseTable.back().Rule);
}

std::vector<std::string> FreeNames() {
    return NamesOf(CollectFreeVars());
}

bool IsGreen(const std::string& name, int stmt) {
    return HoldsName(At(stmt).FreeVars, name) && !HoldsName(At(stmt).FixedVars, name);
}

bool IsIntroducedOn(const std::string& name, int stmt) {
    return IsGreen(name, stmt) || IsIntroducedByESpec(name, stmt);
}

std::string FirstUnknownName(const std::vector<std::string>& own) {
    const std::vector<int> lines = ActiveLines();
    for (const std::string& name : FreeNames()) {
        const bool known = std::find(own.begin(), own.end(), name) != own.end() ||
                           std::any_of(lines.begin(), lines.end(), [&](int line) {
                               return HoldsName(At(line).FreeVars, name);
                           });
        if (!known) return name;
    }
    return "";
}

std::string CheckAxiomNames() {
    for (const std::string& name : FreeNames()) {
        for (int j = 1; j <= StmtCount; ++j) {
            if (!IsIntroducedOn(name, j)) continue;
            return "Variable '" + name + "' was previously introduced on line " + Line(j);
        }
    }
    return "";
}

std::string CheckPremiseNames() {
    const std::string message = CheckEntryAgainstLaterLines();
    return message.empty() ? CheckLaterLines() : message;
}

}  // namespace tessaryn
