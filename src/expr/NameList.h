// Name lists: a string with a leading blank and one blank behind each name, " a b ", or "" if
// empty.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

// Whether the list holds the name between blanks.
bool HoldsName(std::string_view list, std::string_view name);
bool HoldsName(const std::vector<std::string>& names, std::string_view name);

// The same for many questions of one list, which must outlive it.
class NameSet {
  public:
    explicit NameSet(std::string_view list);
    bool Holds(std::string_view name) const;

  private:
    std::vector<std::string_view> names_;  // sorted
};

// The names in their order; {} for an empty list.
std::vector<std::string> NamesOf(const std::string& list);

// Appends the name without looking whether the list holds it already.
void AppendName(std::string& list, std::string_view name);

}  // namespace tessaryn
