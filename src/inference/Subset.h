// The axiom of subsets, for one set and one criterion.
#pragma once

#include <string>
#include <vector>

#include "inference/Outcome.h"

namespace tessaryn {

// What a statement Set(x), Set'(x) and so on says.
struct SetStatement {
    int primes = 0;      // behind Set; the tuples of the set have one place more
    std::string parent;  // x, as written
};
// Tells whether the statement is one.
Outcome SubsetFrom(const Expression& statement);
SetStatement ReadSetStatement(const Expression& statement);

// EXIST(y):[Set(y) & ALL(a):[a @ y <=> [a @ x & [P(a)]]]], with the criterion P as written.
Outcome Subset(const SetStatement& set, const std::string& subset,
               const std::vector<std::string>& variables, const Expression& criterion);

}  // namespace tessaryn
