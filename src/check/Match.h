// How terms compare beyond being equal: instances, changes in one place, replacements.
#pragma once

#include <functional>

#include "check/Terms.h"

namespace tessaryn::check {

// Whether `target` is the body of a quantifier with something in each place of its variable.
// `fits` tells whether that may stand there, inside so many more quantifiers.
bool IsInstance(const Terms& terms, Term body, Term target,
                const std::function<bool(Term, int depth)>& fits);

// The same with one term in all places that names free variables only. `instance` becomes the
// term, or 0 if the body does not hold the variable.
bool IsInstanceOfOne(const Terms& terms, Term body, Term target, Term& instance);

// Whether `to` is `from` with one part changed, and that in the way that `changes` accepts.
bool DiffersInOnePlace(const Terms& terms, Term from, Term to,
                       const std::function<bool(Term from, Term to)>& changes);

// How many universal quantifiers lead a term, and what stands behind the first `count` of them.
int LeadingAlls(const Terms& terms, Term term);
Term BehindQuantifiers(const Terms& terms, Term term, int count);

// The left operands of a chain of one connective, taken apart: `P & Q & R` gives P, Q, R.
std::vector<Term> Chain(const Terms& terms, Term term, Kind connective);

// Whether one term becomes another by replacing `replaced` by `replacing`, any number of times and
// also in what was put there. Each step takes one off `patience`; at 0 the answer is no.
class Replacement {
  public:
    Replacement(const Terms& terms, Term replaced, Term replacing, long long& patience)
        : terms_(terms), replaced_(replaced), replacing_(replacing), patience_(patience) {}
    bool Leads(Term from, Term to);

  private:
    bool OperandsLead(Term from, Term to);
    bool BecomesReplaced(Term from);

    const Terms& terms_;
    Term replaced_, replacing_;
    long long& patience_;
    std::vector<Term> underWay_;  // in BecomesReplaced; none of them may ask for itself
};

}  // namespace tessaryn::check
