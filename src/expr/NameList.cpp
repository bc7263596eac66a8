#include "expr/NameList.h"

namespace tessaryn {

bool HoldsName(std::string_view list, std::string_view name) {
    for (size_t at = list.find(name, 1); at != list.npos; at = list.find(name, at + 1)) {
        const size_t behind = at + name.size();
        if (list[at - 1] == ' ' && behind < list.size() && list[behind] == ' ') return true;
    }
    return false;
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
