// The rules of propositional logic.
#include "check/Match.h"
#include "check/Step.h"

namespace tessaryn::check {
namespace {

Term Not(Terms& terms, Term term) {
    return terms.Make(Kind::Not, term);
}

std::string Line(int line) {
    return "line " + std::to_string(line);
}

// A rule that rewrites one part of its line, at any depth: `rewritten` gives what a part with this
// connective becomes, 0 if the rule does not take it.
template <class Rewritten>
std::string RewritesOnePart(const Step& step, Rewritten rewritten) {
    const bool follows =
        DiffersInOnePlace(step.terms, step.first, step.result, [&](Term from, Term to) {
            const Node node = step.terms[from];  // a copy: new terms move the old ones
            return rewritten(step.terms, node) == to;
        });
    return follows ? "" : "no one part of " + Line(step.Own().arg1) + " rewritten gives it";
}

// A => B  to  ~[A & ~B], and A & B  to  ~[A => ~B]
Term ImplyAndForm(Terms& terms, const Node& node) {
    if (node.kind != Kind::Implies && node.kind != Kind::And) return 0;
    const Kind other = node.kind == Kind::And ? Kind::Implies : Kind::And;
    return Not(terms, terms.Make(other, node.a, Not(terms, node.b)));
}

// A => B  to  ~A | B, and A | B  to  ~A => B
Term ImplyOrForm(Terms& terms, const Node& node) {
    if (node.kind != Kind::Implies && node.kind != Kind::Or) return 0;
    const Kind other = node.kind == Kind::Or ? Kind::Implies : Kind::Or;
    return terms.Make(other, Not(terms, node.a), node.b);
}

// A => B  to  ~B => ~A
Term ContraForm(Terms& terms, const Node& node) {
    if (node.kind != Kind::Implies) return 0;
    return terms.Make(Kind::Implies, Not(terms, node.b), Not(terms, node.a));
}

// A & B  to  ~[~A | ~B], and A | B  to  ~[~A & ~B]
Term DeMorganForm(Terms& terms, const Node& node) {
    if (node.kind != Kind::And && node.kind != Kind::Or) return 0;
    const Kind other = node.kind == Kind::And ? Kind::Or : Kind::And;
    return Not(terms, terms.Make(other, Not(terms, node.a), Not(terms, node.b)));
}

// A <=> B  to  [A => B] & [B => A], and back
Term IffAndForm(Terms& terms, const Node& node) {
    if (node.kind == Kind::Iff) {
        return terms.Make(Kind::And, terms.Make(Kind::Implies, node.a, node.b),
                          terms.Make(Kind::Implies, node.b, node.a));
    }
    const Node left = terms[node.a];
    const Node right = terms[node.b];
    if (node.kind != Kind::And || left.kind != Kind::Implies || right.kind != Kind::Implies ||
        left.a != right.b || left.b != right.a) {
        return 0;
    }
    return terms.Make(Kind::Iff, left.a, left.b);
}

}  // namespace

std::string IffAnd(const Step& step) {
    return RewritesOnePart(step, IffAndForm);
}
std::string ImplyAnd(const Step& step) {
    return RewritesOnePart(step, ImplyAndForm);
}
std::string ImplyOr(const Step& step) {
    return RewritesOnePart(step, ImplyOrForm);
}
std::string Contra(const Step& step) {
    return RewritesOnePart(step, ContraForm);
}
std::string DeMorgan(const Step& step) {
    return RewritesOnePart(step, DeMorganForm);
}

// ~~A  to  A, at any depth.
std::string RemDNeg(const Step& step) {
    const bool follows =
        DiffersInOnePlace(step.terms, step.first, step.result, [&](Term from, Term to) {
            return step.terms.KindOf(from) == Kind::Not &&
                   step.terms.KindOf(step.terms[from].a) == Kind::Not &&
                   step.terms[step.terms[from].a].a == to;
        });
    return follows ? ""
                   : "it is not " + Line(step.Own().arg1) + " with one double negation removed";
}

// P and Q give P & Q. With the first k universal quantifiers of both in common,
// ALL..P and ALL..Q give ALL..[P & Q]; the record does not tell k, and any k will do.
std::string Join(const Step& step) {
    Term result = step.result;
    Term first = step.first;
    Term second = step.second;
    while (true) {
        const Node node = step.terms[result];
        if (node.kind == Kind::And && node.a == first && node.b == second) return "";
        if (node.kind != Kind::All || step.terms.KindOf(first) != Kind::All ||
            step.terms.KindOf(second) != Kind::All) {
            return "it is not the two joined by &";
        }
        result = node.a;
        first = step.terms[first].a;
        second = step.terms[second].a;
    }
}

// One of P, Q, R from P & Q & R.
std::string Split(const Step& step) {
    if (step.terms.KindOf(step.first) != Kind::And) {
        return Line(step.Own().arg1) + " is no conjunction";
    }
    for (const Term part : Chain(step.terms, step.first, Kind::And)) {
        if (part == step.result) return "";
    }
    return "it is no part of " + Line(step.Own().arg1);
}

// P => Q and P give Q.
std::string Detach(const Step& step) {
    const Node implication = step.terms[step.first];
    if (implication.kind != Kind::Implies) return Line(step.Own().arg1) + " is no implication";
    if (implication.a != step.second) {
        return Line(step.Own().arg2) + " is not the left side of " + Line(step.Own().arg1);
    }
    return implication.b == step.result ? ""
                                        : "it is not the right side of " + Line(step.Own().arg1);
}

// P gives P | E and E | P, for any E in names that are in use.
std::string ArbOr(const Step& step) {
    const Node node = step.terms[step.result];
    if (node.kind != Kind::Or || (node.a != step.first && node.b != step.first)) {
        return "it is not " + Line(step.Own().arg1) + " joined by | with something";
    }
    return NewName(step);
}

// P gives E => P.
std::string ArbAnte(const Step& step) {
    const Node node = step.terms[step.result];
    if (node.kind != Kind::Implies || node.b != step.first) {
        return "it is not something that implies " + Line(step.Own().arg1);
    }
    return NewName(step);
}

// P gives ~P => E.
std::string ArbCons(const Step& step) {
    const Node node = step.terms[step.result];
    if (node.kind != Kind::Implies || node.a != Not(step.terms, step.first)) {
        return "its left side is not the negation of " + Line(step.Own().arg1);
    }
    return NewName(step);
}

// E | ~E
std::string OrNot(const Step& step) {
    const Node node = step.terms[step.result];
    if (node.kind != Kind::Or || node.b != Not(step.terms, node.a)) {
        return "it is not something or its negation";
    }
    return NewName(step);
}

// P1 | P2 | P3 and [P1 => Q] & [P2 => Q] & [P3 => Q] give Q.
std::string Cases(const Step& step) {
    if (step.terms.KindOf(step.first) != Kind::Or) {
        return Line(step.Own().arg1) + " is no disjunction";
    }
    if (step.terms.KindOf(step.second) != Kind::And) {
        return Line(step.Own().arg2) + " is no conjunction";
    }
    const std::vector<Term> cases = Chain(step.terms, step.first, Kind::Or);
    const std::vector<Term> implications = Chain(step.terms, step.second, Kind::And);
    if (cases.size() != implications.size()) return "there are not as many implications as cases";
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Node node = step.terms[implications[i]];
        if (node.kind != Kind::Implies || node.a != cases[i] || node.b != step.result) {
            return "it does not follow from case " + std::to_string(i + 1);
        }
    }
    return "";
}

std::string Copy(const Step& step) {
    return step.result == step.first ? "" : "it is not the same as " + Line(step.Own().arg1);
}

}  // namespace tessaryn::check
