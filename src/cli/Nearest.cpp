#include "cli/Nearest.h"

#include <algorithm>
#include <utility>

namespace tessaryn {

namespace {

constexpr std::size_t LongestWord = 64;  // nobody mistypes more

char Small(char c) {
    return static_cast<char>(c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c);
}

// Letters to put in, take out, change, or swap with their neighbours, to make one word the other.
std::size_t Difference(std::string_view one, std::string_view other) {
    std::vector<std::size_t> before(other.size() + 1);  // two rows up
    std::vector<std::size_t> above(other.size() + 1);
    std::vector<std::size_t> row(other.size() + 1);
    for (std::size_t k = 0; k <= other.size(); ++k) row[k] = k;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        std::swap(before, above);
        std::swap(above, row);
        row[0] = i;
        for (std::size_t k = 1; k <= other.size(); ++k) {
            const bool same = Small(one[i - 1]) == Small(other[k - 1]);
            row[k] = std::min({above[k] + 1, row[k - 1] + 1, above[k - 1] + (same ? 0 : 1)});
            if (i > 1 && k > 1 && one[i - 1] == other[k - 2] && one[i - 2] == other[k - 1]) {
                row[k] = std::min(row[k], before[k - 2] + 1);
            }
        }
    }
    return row.back();
}

}  // namespace

std::string DidYouMean(std::string_view word, const std::vector<std::string_view>& known) {
    if (word.size() > LongestWord) return "";
    std::string_view nearest;
    std::size_t least = LongestWord;
    for (const std::string_view name : known) {
        const std::size_t difference = Difference(word, name);
        if (difference >= least || difference * 3 > std::max<std::size_t>(name.size(), 3)) continue;
        least = difference;
        nearest = name;
    }
    return nearest.empty() ? "" : "; did you mean " + std::string(nearest) + "?";
}

}  // namespace tessaryn
