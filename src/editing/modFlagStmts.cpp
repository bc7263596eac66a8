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

// What is in force ahead of a statement: the lines without a mark that are in no closed block, with
// their free names. A Conclusion takes the lines of its block out of force and stands for them.
class LinesInForce {
  public:
    void Add(int line, const Statement& stmt) {
        if (IsConclusion(stmt)) DropFrom(stmt.Arg1);
        if (stmt.Rule == Rule::Premise) premises_.push_back(line);
        const bool plain = !IsConclusion(stmt);
        ForEachName(stmt.FreeVars, [&](std::string_view name) {
            Uses& uses = names_[name];
            if (uses.all++ == 0) uses.first = line;
            if (plain) ++uses.plain;
            log_.push_back({line, &uses, plain});
        });
    }

    // Does the name occur free in a line that is no Conclusion?
    bool IsKnown(std::string_view name) const {
        const auto found = names_.find(name);
        return found != names_.end() && found->second.plain > 0;
    }

    // The innermost premise ahead of a line; 0 if there is none.
    int InnermostPremise(int line) const {
        const auto next = std::lower_bound(premises_.begin(), premises_.end(), line);
        return next == premises_.begin() ? 0 : *(next - 1);
    }

    // Does the name occur free ahead of a line, Conclusions included?
    bool IsUsedAhead(std::string_view name, int line) const {
        const auto found = names_.find(name);
        return found != names_.end() && found->second.all > 0 && found->second.first < line;
    }

  private:
    struct Uses {
        int all = 0;    // lines in force with the name
        int plain = 0;  // those of them that are no Conclusions
        int first = 0;  // the first of all
    };
    struct LogEntry {
        int line;
        Uses* uses;
        bool plain;
    };

    void DropFrom(int line) {
        for (; !log_.empty() && log_.back().line >= line; log_.pop_back()) {
            --log_.back().uses->all;
            if (log_.back().plain) --log_.back().uses->plain;
        }
        while (!premises_.empty() && premises_.back() >= line) premises_.pop_back();
    }

    std::unordered_map<std::string_view, Uses> names_;  // keys lie in the statements' lists
    std::vector<LogEntry> log_;                         // uses in force, ascending
    std::vector<int> premises_;                         // premises in force, ascending
};

bool IsMarked(int line) {
    return line > 0 && StmtTable[line].Flagged;
}

bool BringsIn(const Statement& stmt, std::string_view name) {
    return stmt.Rule == Rule::ESpec && stmt.SpecName == name;
}

// Is the name fixed in the statement, now that what is marked has gone?
bool IsFixedNow(const LinesInForce& ahead, int line, const Statement& stmt, std::string_view name) {
    int premise = line;
    if (stmt.Rule != Rule::Premise) {
        premise = ahead.InnermostPremise(IsConclusion(stmt) ? stmt.Arg1 : line);
    }
    return premise == 0 || ahead.IsUsedAhead(name, premise);
}

bool NameFails(const LinesInForce& ahead, int line, const Statement& stmt, std::string_view name) {
    if (ahead.IsKnown(name)) {
        if (BringsIn(stmt, name)) return true;
    } else if (!BringsIn(stmt, name) && stmt.Rule != Rule::Premise && stmt.Rule != Rule::Axiom) {
        return true;
    }
    return HoldsName(stmt.FixedVars, name) != IsFixedNow(ahead, line, stmt, name);
}

bool Falls(const LinesInForce& ahead, int line, const Statement& stmt) {
    if (IsMarked(stmt.Arg1) || IsMarked(stmt.Arg2)) return true;
    if (IsConclusion(stmt) && IsMarked(line - 1)) return true;
    bool fails = false;
    ForEachName(stmt.FreeVars, [&](std::string_view name) {
        fails = fails || NameFails(ahead, line, stmt, name);
    });
    return fails;
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
        Statement& here = EditAt(line);
        if (line > stmt && Falls(inForce, line, here)) {
            here.Flagged = true;
            ++count;
        }
        if (!here.Flagged) inForce.Add(line, here);
    }
}

}  // namespace tessaryn
