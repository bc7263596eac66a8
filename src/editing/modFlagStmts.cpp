// The dependency sweep of a deletion, forward over the statements in one go.
#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "document/Document.h"
#include "editing/Delete.h"
#include "expr/NameList.h"
#include "mainwindow/RuleModes.h"

namespace tessaryn {
namespace {

// Calls visit(name) for each name of a list.
template <class Visit>
void ForEachName(std::string_view list, Visit visit) {
    for (std::size_t start = list.find_first_not_of(' '); start != list.npos;) {
        const std::size_t end = std::min(list.find(' ', start), list.size());
        visit(list.substr(start, end - start));
        start = list.find_first_not_of(' ', end);
    }
}

// A name and the lines in force in which it occurs free.
struct UsedName {
    std::string_view text;
    int all = 0;    // lines
    int plain = 0;  // those of them that are no Conclusions
    int first = 0;  // the first of all

    // Does it occur in a line that is no Conclusion?
    bool IsKnown() const { return plain > 0; }
    // Does it occur ahead of a line, in a Conclusion or not?
    bool IsUsedAhead(int line) const { return all > 0 && first < line; }
};
using UsedNames = std::vector<UsedName*>;

// What is in force ahead of a statement: the lines without a mark that are in no closed block, with
// their free names. A Conclusion takes the lines of its block out of force and stands for them.
class LinesInForce {
  public:
    // The names of a list, which are the same objects for each list that holds them.
    const UsedNames& NamesIn(const KeptText& list) {
        const auto found = lists_.find(list.Key());
        if (found != lists_.end()) return found->second;
        UsedNames& names = lists_[list.Key()];
        ForEachName(list, [&](std::string_view name) {
            UsedName& used = names_[name];
            used.text = name;
            names.push_back(&used);
        });
        return names;
    }

    void Add(int line, const Statement& stmt) {
        if (IsConclusion(stmt)) DropFrom(stmt.Arg1);
        if (stmt.Rule == Rule::Premise) premises_.push_back(line);
        const int plain = IsConclusion(stmt) ? 0 : 1;
        const UsedNames& names = NamesIn(stmt.FreeVars);
        for (UsedName* name : names) {
            if (name->all++ == 0) name->first = line;
            name->plain += plain;
        }
        if (!names.empty()) log_.push_back({line, plain, &names});
    }

    // The innermost premise ahead of a line; 0 if there is none.
    int InnermostPremise(int line) const {
        const auto next = std::lower_bound(premises_.begin(), premises_.end(), line);
        return next == premises_.begin() ? 0 : *(next - 1);
    }

  private:
    struct Entry {
        int line;
        int plain;
        const UsedNames* names;
    };

    void DropFrom(int line) {
        for (; !log_.empty() && log_.back().line >= line; log_.pop_back()) {
            for (UsedName* name : *log_.back().names) {
                --name->all;
                name->plain -= log_.back().plain;
            }
        }
        while (!premises_.empty() && premises_.back() >= line) premises_.pop_back();
    }

    std::unordered_map<std::size_t, UsedNames> lists_;      // by key
    std::unordered_map<std::string_view, UsedName> names_;  // the texts lie in lists
    std::vector<Entry> log_;                                // lines in force, ascending
    std::vector<int> premises_;                             // premises in force, ascending
};

bool IsMarked(int line) {
    return line > 0 && StmtTable[line].Flagged;
}

bool BringsIn(const Statement& stmt, std::string_view name) {
    return stmt.Rule == Rule::ESpec && stmt.SpecName == name;
}

// Is the name fixed in the statement, now that what is marked has gone?
bool IsFixedNow(const LinesInForce& ahead, int line, const Statement& stmt, const UsedName& name) {
    int premise = line;
    if (stmt.Rule != Rule::Premise) {
        premise = ahead.InnermostPremise(IsConclusion(stmt) ? stmt.Arg1 : line);
    }
    return premise == 0 || name.IsUsedAhead(premise);
}

bool NameFails(const LinesInForce& ahead, int line, const Statement& stmt, const UsedName& name) {
    if (name.IsKnown()) {
        if (BringsIn(stmt, name.text)) return true;
    } else if (!BringsIn(stmt, name.text) && stmt.Rule != Rule::Premise &&
               stmt.Rule != Rule::Axiom) {
        return true;
    }
    return HoldsName(stmt.FixedVars, name.text) != IsFixedNow(ahead, line, stmt, name);
}

bool Falls(LinesInForce& ahead, int line, const Statement& stmt) {
    if (IsMarked(stmt.Arg1) || IsMarked(stmt.Arg2)) return true;
    if (IsConclusion(stmt) && IsMarked(line - 1)) return true;
    const UsedNames& names = ahead.NamesIn(stmt.FreeVars);
    return std::any_of(names.begin(), names.end(),
                       [&](const UsedName* name) { return NameFails(ahead, line, stmt, *name); });
}

}  // namespace

void ClearMarks() {
    for (int line = 1; line <= StmtCount; ++line) {
        if (!At(line).Flagged && At(line).NewNumber == 0) continue;
        EditAt(line).Flagged = false;
        EditAt(line).NewNumber = 0;
    }
}

void FlagStmts(int stmt, int& count) {
    ClearMarks();
    EditAt(stmt).Flagged = true;
    count = 1;
    LinesInForce inForce;
    for (int line = 1; line <= StmtCount; ++line) {
        if (line > stmt && Falls(inForce, line, At(line))) {
            EditAt(line).Flagged = true;
            ++count;
        }
        if (!At(line).Flagged) inForce.Add(line, At(line));
    }
}

}  // namespace tessaryn
