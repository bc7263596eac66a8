// What an inference gives.
//
// An inference is a function of parsed statements and of what the user chose: a sign, a term,
// names. It knows neither lines nor windows. Whether names are in use in the proof, and whether the
// text that it gives parses, is for its caller to find out: a text may use one name in two ways.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "expr/Expression.h"

namespace tessaryn {

struct Outcome {
    std::vector<std::string> texts;  // of the new statements, not yet in canonical form
    // Why the rule does not apply, as the end of a sentence that begins with the line of the last
    // statement given: "is no implication: ...". %1 stands for the line of the first one. "" if it
    // does.
    std::string refusal;

    bool Applies() const { return refusal.empty(); }
};

inline Outcome Writes(std::string text) {
    return {{std::move(text)}, ""};
}
inline Outcome Refused(std::string reason) {
    return {{}, std::move(reason)};
}

// From this length on, in bytes, what a rule puts together goes onto two lines.
inline constexpr std::size_t FoldedLength = 50;

}  // namespace tessaryn
