#include "entry/EntryChecks.h"

#include <algorithm>
#include <map>

#include "document/ActiveLines.h"
#include "expr/Expression.h"
#include "expr/NameList.h"
#include "expr/Same.h"
#include "mainwindow/RuleModes.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

std::string Line(int number) {
    return std::to_string(number);
}

bool IsIntroducedByESpec(const std::string& name, int line) {
    return At(line).Rule == Rule::ESpec && At(line).SpecName == name;
}

bool IsIntroducedByPremise(const std::string& name, int line) {
    return At(line).Rule == Rule::Premise && IsGreen(name, line);
}

std::vector<std::string> GreenNames(int line) {
    const Statement& stmt = At(line);
    if (stmt.FreeVars == stmt.FixedVars) return {};
    std::vector<std::string> names = NamesOf(stmt.FreeVars);
    std::erase_if(names, [&](const std::string& name) { return !IsGreen(name, line); });
    return names;
}

// The names that premises and E Specs bring in from a first line on, as seen from the line entered
// last. Of a closed block only its Premise is seen from behind. Lines are entered in order, so that
// a whole proof takes one walk.
class Introductions {
  public:
    explicit Introductions(int first) : first_(first) {}

    void Enter(int line) {
        const Statement& stmt = At(line);
        if (IsConclusion(stmt)) {
            ShrinkTo(stmt.Arg1 < first_ ? 0 : seenFrom_[Place(stmt.Arg1)]);
        } else if (stmt.Rule == Rule::Premise) {
            for (const std::string& name : GreenNames(line)) Add(name);
        } else if (stmt.Rule == Rule::ESpec) {
            Add(stmt.SpecName);
        }
        seenFrom_.push_back(names_.size());
    }

    bool Hold(const std::string& name) const { return times_.contains(name); }

  private:
    std::size_t Place(int line) const { return static_cast<std::size_t>(line - first_); }

    void Add(const std::string& name) {
        names_.push_back(name);
        ++times_[name];
    }

    void ShrinkTo(std::size_t count) {
        for (; names_.size() > count; names_.pop_back()) {
            const auto found = times_.find(names_.back());
            if (--found->second == 0) times_.erase(found);
        }
    }

    int first_;
    std::vector<std::string> names_;     // in order of introduction
    std::map<std::string, int> times_;   // how often a name stands in names_
    std::vector<std::size_t> seenFrom_;  // by line from first_: the length of names_ there
};

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
    Introductions seen(InsertLine);
    for (int i = InsertLine; i <= StmtCount; ++i) {
        seen.Enter(i);
        for (const std::string& name : GreenNames(i)) {
            if (seen.Hold(name)) continue;
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
    const KeptText& names = At(stmt).FreeVars;
    const KeptText& fixed = At(stmt).FixedVars;
    return names != fixed && HoldsName(names, name) && !HoldsName(fixed, name);
}

bool IsIntroducedOn(const std::string& name, int stmt) {
    return IsGreen(name, stmt) || IsIntroducedByESpec(name, stmt);
}

std::string FirstUnknownName(const std::vector<std::string>& own) {
    const std::vector<int> lines = ActiveLines(InsertionLimit());
    for (const std::string& name : FreeNames()) {
        const bool known =
            HoldsName(own, name) || std::any_of(lines.begin(), lines.end(), [&](int line) {
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
