// Premises, and what is left when they are discharged.
#include <algorithm>
#include <unordered_map>

#include "check/Grounds.h"
#include "check/Match.h"
#include "check/RuleNames.h"
#include "check/Step.h"

namespace tessaryn::check {
namespace {

// The quantifiers that a Conclusion puts: for each name the place of its quantifier, counted from
// the outermost.
using Levels = std::unordered_map<int, int>;

// The term with those names bound, inside so many quantifiers.
Term Bind(Terms& terms, Term term, const Levels& levels, int depth) {
    const Node node = terms[term];
    if (node.kind == Kind::Bound) return term;
    if (node.kind == Kind::Name) {
        const auto level = levels.find(node.a);
        return level == levels.end() ? term : terms.Make(Kind::Bound, depth - 1 - level->second);
    }
    const int inner = depth + (IsQuantifier(node.kind) ? 1 : 0);
    const Term a = Bind(terms, node.a, levels, inner);
    return terms.Make(node.kind, a, Bind(terms, node.b, levels, inner));
}

Term Quantify(Terms& terms, Kind kind, Term term, int count) {
    for (; count > 0; --count) term = terms.Make(kind, term);
    return term;
}

bool AreOpposite(const Terms& terms, Term a, Term b) {
    return terms[a].kind == Kind::Not && terms[a].a == b;
}

// A & ~A, A <=> ~A, either way round, and ~x=x. Deeper ones are not looked for.
bool IsContradiction(const Terms& terms, Term term) {
    const Node node = terms[term];
    if (node.kind == Kind::And || node.kind == Kind::Iff) {
        return AreOpposite(terms, node.a, node.b) || AreOpposite(terms, node.b, node.a);
    }
    if (node.kind != Kind::Not) return false;
    const Node equation = terms[node.a];
    return equation.kind == Kind::Equal && equation.a == equation.b;
}

// What the Conclusion of the block from `premise` to the line ahead has to read.
//
// The names that the premise brought in are bound by ALL around it all; the others that are new in
// the block and free in the last line by EXIST around that.
//
// A name that a record calls red was known outside when its line was written. If lines were put in
// ahead since, it may be new by now, and stays free all the same: no line outside says anything
// about it, so it may stand for anything. That is not so for the witness of an E Spec in the block,
// nor is it believed of a premise's name that no line ahead has ever spoken of.
Term Concluded(const Step& step, int premise, Term start, Term end) {
    Terms& terms = step.terms;
    const Scope& scope = step.scope;
    Levels levels;
    int alls = 0;
    const std::span<const int> own = scope.Names(premise);
    const std::span<const char> ownReds = scope.Reds(premise);
    for (std::size_t i = 0; i < own.size(); ++i) {
        if (ownReds[i] != 0 && scope.FirstEver(own[i]) < premise) continue;
        levels[own[i]] = alls++;
    }
    if (IsContradiction(terms, end)) {
        const Term body = Bind(terms, start, levels, alls);
        return terms.Make(Kind::Not, Quantify(terms, Kind::Exist, body, alls));
    }
    const Term left = Bind(terms, start, levels, alls);
    const std::span<const int> names = scope.Names(step.line - 1);
    const std::span<const char> reds = scope.Reds(step.line - 1);
    int exists = 0;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (scope.FirstUse(names[i]) <= premise) continue;  // the premise's, or known outside
        if (reds[i] != 0 && scope.WitnessLine(names[i]) == 0) continue;
        levels[names[i]] = alls + exists++;
    }
    const Term right =
        Quantify(terms, Kind::Exist, Bind(terms, end, levels, alls + exists), exists);
    return Quantify(terms, Kind::All, terms.Make(Kind::Implies, left, right), alls);
}

// A premise inside the block whose own Conclusion is gone, and on which the last line rests; 0
// none.
int LeftOpen(const Step& step, int premise) {
    if (step.scope.OpenPremises().back() == premise) return 0;
    step.patience -= step.line - premise;
    for (const int line : Ancestry(step.records, step.line - 1, premise + 1)) {
        const Record& record = step.At(line);
        if (record.rule == static_cast<int>(Rule::Premise) && record.arg1 == 0) return line;
    }
    return 0;
}

}  // namespace

// Anything may be supposed. Whether its block is closed is looked at elsewhere.
std::string Premise(const Step&) {
    return "";
}

std::string Conclusion(const Step& step) {
    const int premise = step.Own().arg1;
    if (const int open = LeftOpen(step, premise); open != 0) {
        return "the premise in line " + std::to_string(open) + " is still open";
    }
    // The statement of the line ahead is the second here, though no reference names it.
    if (step.result == Concluded(step, premise, step.first, step.second)) return "";
    if (IsContradiction(step.terms, step.second)) {
        return "the block ends in a contradiction, so it has to deny its premise";
    }
    return "it is not what is left of the block when its premise is discharged";
}

}  // namespace tessaryn::check
