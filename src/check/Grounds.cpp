#include "check/Grounds.h"

#include <algorithm>

#include "check/RuleNames.h"

namespace tessaryn::check {

std::array<int, 2> Sources(const std::vector<Record>& records, int line) {
    const Record& record = records[static_cast<std::size_t>(line)];
    if (record.rule == static_cast<int>(Rule::Conclusion)) return {line - 1, 0};
    if (record.rule == static_cast<int>(Rule::Premise)) return {0, 0};
    return {record.arg1, record.arg2};
}

std::vector<int> Ancestry(const std::vector<Record>& records, int line, int least) {
    std::vector<char> seen(static_cast<std::size_t>(line - least + 1), 0);
    std::vector<int> found;
    const auto reach = [&](int other) {
        if (other < least || seen[static_cast<std::size_t>(other - least)] != 0) return;
        seen[static_cast<std::size_t>(other - least)] = 1;
        found.push_back(other);
    };
    reach(line);
    for (std::size_t i = 0; i < found.size(); ++i) {
        for (const int source : Sources(records, found[i])) reach(source);
    }
    std::sort(found.begin(), found.end());
    return found;
}

}  // namespace tessaryn::check
