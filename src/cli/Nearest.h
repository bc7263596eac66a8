// What somebody may have meant who wrote a name that is none.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaryn {

// "; did you mean NAME?" with the known name that differs least, in a third of its letters at most.
// "" if none does. Capitals count as small letters.
std::string DidYouMean(std::string_view word, const std::vector<std::string_view>& known);

}  // namespace tessaryn
