// The rules of equality.
#include "check/Match.h"
#include "check/Step.h"

namespace tessaryn::check {

// s = t and a statement give the statement with t for s, or s for t, in some places. The record
// tells neither the direction nor the places.
std::string Substitute(const Step& step) {
    const Node equation = step.terms[step.first];
    if (equation.kind != Kind::Equal) {
        return "line " + std::to_string(step.Own().arg1) + " is no equation";
    }
    if (Replacement(step.terms, equation.a, equation.b, step.patience)
            .Leads(step.second, step.result) ||
        Replacement(step.terms, equation.b, equation.a, step.patience)
            .Leads(step.second, step.result)) {
        return "";
    }
    return "it differs from line " + std::to_string(step.Own().arg2) + " in more than that";
}

// s = t  to  t = s, at any depth.
std::string Sym(const Step& step) {
    const bool follows =
        DiffersInOnePlace(step.terms, step.first, step.result, [&](Term from, Term to) {
            const Node a = step.terms[from];
            const Node b = step.terms[to];
            return a.kind == Kind::Equal && b.kind == Kind::Equal && a.a == b.b && a.b == b.a;
        });
    return follows ? ""
                   : "it is not line " + std::to_string(step.Own().arg1) +
                         " with the sides of one equation exchanged";
}

// t = t, for a name that is in use, or for a term of which the reference says that it is an
// element of something.
std::string Reflex(const Step& step) {
    const Node equation = step.terms[step.result];
    const int arg1 = step.Own().arg1;
    if (equation.kind != Kind::Equal || equation.a != equation.b) return "its sides differ";
    if (step.terms.KindOf(equation.a) == Kind::Name) {
        return arg1 == 0 ? NewName(step) : "it needs no reference";
    }
    if (arg1 == 0) return "nothing says that the term is an element of something";
    const Node element = step.terms[step.first];
    if (element.kind == Kind::Element && element.a == equation.a) return "";
    return "line " + std::to_string(arg1) +
           " does not say that the term is an element of something";
}

}  // namespace tessaryn::check
