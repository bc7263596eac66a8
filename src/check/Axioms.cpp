// The lines that rest on no other: axioms, and what the axiom schemes give.
#include <algorithm>

#include "check/Match.h"
#include "check/RuleNames.h"
#include "check/Schemes.h"
#include "check/Step.h"

namespace tessaryn::check {
namespace {

// "" if each of these names was in the proof ahead, `introduced` excepted.
std::string NewNameBut(const Step& step, std::string_view introduced) {
    for (std::size_t i = 0; i < step.names.size(); ++i) {
        const int name = step.names[i];
        if (step.scope.FirstUse(name) != 0) continue;
        if (step.reds[i] != 0 && step.scope.MayHaveBeenInUse(name)) continue;
        if (step.terms.NameText(name) == introduced) continue;
        return "the name " + std::string(step.terms.NameText(name)) +
               " is in no line in force ahead of it";
    }
    return "";
}

// The primes of Set, Set' and so on; -1 if it is another predicate.
int PrimesOfSet(const Terms& terms, Term predicate) {
    const std::string_view name = terms.NameText(terms[predicate].a);
    if (!name.starts_with("Set")) return -1;
    return name.find_first_not_of('\'', 3) == std::string_view::npos
               ? static_cast<int>(name.size()) - 3
               : -1;
}

// The n-tuple of the variables that the n innermost quantifiers bind, the outermost of them first.
Term VariableTuple(Terms& terms, int n) {
    Term tuple = terms.Make(Kind::Bound, n - 1);
    for (int i = n - 2; i >= 0; --i) {
        tuple = terms.Make(Kind::Tuple, tuple, terms.Make(Kind::Bound, i));
    }
    return tuple;
}

}  // namespace

std::string NewName(const Step& step) {
    return NewNameBut(step, "");
}

// Anything may be an axiom that stands ahead of all premises and says nothing of a witness.
std::string Axiom(const Step& step) {
    for (const int name : step.names) {
        if (const int line = step.scope.WitnessLine(name); line != 0) {
            return "the name " + std::string(step.terms.NameText(name)) +
                   " was brought in by E Spec in line " + std::to_string(line);
        }
    }
    const int premise = step.scope.FirstPremise();
    return premise == 0 ? "" : "a premise stands ahead of it, in line " + std::to_string(premise);
}

std::string SetAxiom(const Step& step) {
    return step.schemes.IsSetAxiom(Rule{step.Own().rule}, step.result)
               ? ""
               : "the axiom reads otherwise";
}

std::string Definition(const Step& step) {
    if (step.schemes.DefinedSign(step.result).empty()) return "it is none of the definitions";
    return NewNameBut(step, "next");  // which only that of + speaks of
}

// From Set(x): EXIST(s):[Set(s) & ALL(a):[a @ s <=> a @ x & P]], where P does not speak of s. For
// Set'(x), whose elements are pairs, ALL(a):ALL(b):[(a,b) @ s <=> ...], and so on.
std::string Subset(const Step& step) {
    Terms& terms = step.terms;
    const Node given = terms[step.first];
    const int primes = given.kind == Kind::Apply ? PrimesOfSet(terms, given.a) : -1;
    if (primes < 0 || !terms.IsTerm(given.b)) {
        return "line " + std::to_string(step.Own().arg1) + " does not say that something is a set";
    }
    const int n = primes + 1;
    const char* const otherwise = "the axiom reads otherwise";
    if (terms.KindOf(step.result) != Kind::Exist) return otherwise;
    const Node both = terms[terms[step.result].a];
    if (both.kind != Kind::And ||
        both.a != terms.Make(Kind::Apply, given.a, terms.Make(Kind::Bound, 0)) ||
        LeadingAlls(terms, both.b) < n) {
        return otherwise;
    }
    const Node members = terms[BehindQuantifiers(terms, both.b, n)];
    const Term tuple = VariableTuple(terms, n);
    if (members.kind != Kind::Iff ||
        members.a != terms.Make(Kind::Element, tuple, terms.Make(Kind::Bound, n))) {
        return otherwise;
    }
    const Node selected = terms[members.b];
    if (selected.kind != Kind::And || selected.a != terms.Make(Kind::Element, tuple, given.b)) {
        return otherwise;
    }
    // The subset is bound by the outermost of all quantifiers.
    if (terms[selected.b].loose > n) return "its criterion speaks of the subset itself";
    return NewName(step);
}

// P(1) & ALL(k):[k @ n & P(k) => P(k+1)] => ALL(k):[k @ n => P(k)]
std::string Induction(const Step& step) {
    Terms& terms = step.terms;
    const char* const otherwise = "it is not induction for the property that it ends with";
    const Node whole = terms[step.result];
    if (whole.kind != Kind::Implies || terms.KindOf(whole.b) != Kind::All ||
        terms.KindOf(whole.a) != Kind::And) {
        return otherwise;
    }
    const Node goal = terms[terms[whole.b].a];
    const Node cases = terms[whole.a];
    if (goal.kind != Kind::Implies || terms.KindOf(cases.b) != Kind::All) return otherwise;
    const Term variable = terms.Make(Kind::Bound, 0);
    const Term number = terms.Make(Kind::Element, variable, terms.Small("n"));
    const Term property = goal.b;
    const Node stepCase = terms[terms[cases.b].a];
    if (goal.a != number || stepCase.kind != Kind::Implies ||
        stepCase.a != terms.Make(Kind::And, number, property)) {
        return otherwise;
    }
    const Term one = terms.Small("1");
    const auto isOne = [&](Term term, int) { return term == one; };
    const auto isNext = [&](Term term, int depth) {
        return term == terms.Make(Kind::Plus, terms.Make(Kind::Bound, depth), one);
    };
    if (!IsInstance(terms, property, cases.a, isOne)) return "its first case is not that of 1";
    if (!IsInstance(terms, property, stepCase.b, isNext)) return "its step does not add 1";
    return NewName(step);
}

}  // namespace tessaryn::check
