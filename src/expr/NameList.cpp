#include "expr/NameList.h"

#include <algorithm>

namespace tessaryn {

bool HoldsName(std::string_view list, std::string_view name) {
    for (size_t at = list.find(name, 1); at != list.npos; at = list.find(name, at + 1)) {
        const size_t behind = at + name.size();
        if (list[at - 1] == ' ' && behind < list.size() && list[behind] == ' ') return true;
    }
    return false;
}

bool HoldsName(const std::vector<std::string>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

NameSet::NameSet(std::string_view list) {
    size_t blank = list.find(' ');
    while (blank != list.npos) {
        const size_t next = list.find(' ', blank + 1);
        if (next != list.npos) names_.push_back(list.substr(blank + 1, next - blank - 1));
        blank = next;
    }
    std::sort(names_.begin(), names_.end());
}

bool NameSet::Holds(std::string_view name) const {
    return std::binary_search(names_.begin(), names_.end(), name);
}

std::vector<std::string> NamesOf(const std::string& list) {
    std::vector<std::string> names;
    size_t start = 0;
    while ((start = list.find_first_not_of(' ', start)) != list.npos) {
        const size_t end = list.find(' ', start);
        names.push_back(list.substr(start, end - start));
        if (end == list.npos) break;
        start = end;
    }
    return names;
}

void AppendName(std::string& list, std::string_view name) {
    if (list.empty()) list.push_back(' ');
    list += name;
    list += ' ';
}

}  // namespace tessaryn
