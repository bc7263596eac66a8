#include "check/Match.h"

#include <algorithm>

namespace tessaryn::check {
namespace {

bool InstanceAt(const Terms& terms, Term body, Term target, int depth,
                const std::function<bool(Term, int depth)>& fits) {
    const Node pattern = terms[body];
    if (pattern.loose <= depth) return body == target;
    if (pattern.kind == Kind::Bound) return fits(target, depth);
    const Node other = terms[target];
    if (other.kind != pattern.kind) return false;
    const int inner = depth + (IsQuantifier(pattern.kind) ? 1 : 0);
    return InstanceAt(terms, pattern.a, other.a, inner, fits) &&
           InstanceAt(terms, pattern.b, other.b, inner, fits);
}

}  // namespace

bool IsInstance(const Terms& terms, Term body, Term target,
                const std::function<bool(Term, int depth)>& fits) {
    return InstanceAt(terms, body, target, 0, fits);
}

bool IsInstanceOfOne(const Terms& terms, Term body, Term target, Term& instance) {
    instance = 0;
    return IsInstance(terms, body, target, [&](Term term, int) {
        if (instance == 0 && terms[term].loose == 0) instance = term;
        return term == instance;
    });
}

bool DiffersInOnePlace(const Terms& terms, Term from, Term to,
                       const std::function<bool(Term from, Term to)>& changes) {
    if (from == 0) return false;
    if (changes(from, to)) return true;
    const Node a = terms[from];
    const Node b = terms[to];
    if (a.kind != b.kind || IsLeaf(a.kind)) return false;
    return (a.b == b.b && DiffersInOnePlace(terms, a.a, b.a, changes)) ||
           (a.a == b.a && DiffersInOnePlace(terms, a.b, b.b, changes));
}

int LeadingAlls(const Terms& terms, Term term) {
    int count = 0;
    for (; terms.KindOf(term) == Kind::All; term = terms[term].a) ++count;
    return count;
}

Term BehindQuantifiers(const Terms& terms, Term term, int count) {
    for (; count > 0; --count) term = terms[term].a;
    return term;
}

std::vector<Term> Chain(const Terms& terms, Term term, Kind connective) {
    std::vector<Term> parts;
    for (; terms.KindOf(term) == connective; term = terms[term].a) parts.push_back(terms[term].b);
    parts.push_back(term);
    std::reverse(parts.begin(), parts.end());
    return parts;
}

bool Replacement::Leads(Term from, Term to) {
    if (from == to) return true;
    if (--patience_ <= 0) return false;
    if (OperandsLead(from, to)) return true;
    return from != replacing_ && BecomesReplaced(from) && Leads(replacing_, to);
}

bool Replacement::OperandsLead(Term from, Term to) {
    const Node a = terms_[from];
    const Node b = terms_[to];
    return a.kind == b.kind && !IsLeaf(a.kind) && Leads(a.a, b.a) && Leads(a.b, b.b);
}

// Replacements inside a term may make it one that can be replaced.
bool Replacement::BecomesReplaced(Term from) {
    if (from == replaced_) return true;
    if (terms_.KindOf(from) != terms_.KindOf(replaced_)) return false;
    patience_ -= static_cast<long long>(underWay_.size()) / 8;
    if (std::find(underWay_.begin(), underWay_.end(), from) != underWay_.end()) return false;
    underWay_.push_back(from);
    const bool becomes = OperandsLead(from, replaced_);
    underWay_.pop_back();
    return becomes;
}

}  // namespace tessaryn::check
