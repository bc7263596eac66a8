// The rules of quantifiers, but for what a Conclusion does.
#include "check/Match.h"
#include "check/Statement.h"
#include "check/Step.h"

namespace tessaryn::check {
namespace {

std::string Line(int line) {
    return "line " + std::to_string(line);
}

bool IsSmallName(std::string_view text) {
    Terms terms;
    StatementReader reader(terms);
    // A name is what can be an argument, and prints as it stands.
    const std::string statement = "P(" + std::string(text) + ")";
    return terms.KindOf(terms[reader.Read(statement, 0).term].b) == Kind::Name;
}

}  // namespace

// ALL(x):P  to  ~EXIST(x):~P, and EXIST(x):P  to  ~ALL(x):~P, at any depth.
std::string Quant(const Step& step) {
    Terms& terms = step.terms;
    const bool follows = DiffersInOnePlace(terms, step.first, step.result, [&](Term from, Term to) {
        const Node node = terms[from];
        if (!IsQuantifier(node.kind)) return false;
        const Kind other = node.kind == Kind::All ? Kind::Exist : Kind::All;
        return to == terms.Make(Kind::Not, terms.Make(other, terms.Make(Kind::Not, node.a)));
    });
    return follows ? "" : "it is not " + Line(step.Own().arg1) + " with one quantifier switched";
}

// EXIST(x):P gives P with a new name, a witness, for x.
std::string ESpec(const Step& step) {
    if (step.terms.KindOf(step.first) != Kind::Exist) {
        return Line(step.Own().arg1) + " does not begin with EXIST";
    }
    Term witness = 0;
    if (!IsInstanceOfOne(step.terms, step.terms[step.first].a, step.result, witness)) {
        return "it is not " + Line(step.Own().arg1) + " with a name for its variable";
    }
    const std::string_view name = step.Own().specName;
    if (witness == 0) return IsSmallName(name) ? "" : "its record holds no name for the variable";
    const Node node = step.terms[witness];
    if (node.kind != Kind::Name) return "what stands for the variable is no name";
    if (step.terms.NameText(node.a) != name) return "its record holds another name";
    const int use = step.scope.FirstUse(node.a);
    if (use == 0) return "";
    return "the name " + std::string(name) + " is not new: it stands in " + Line(use);
}

// ALL(x):P gives P with a term for x: a name that is in use, or a term of which the second
// reference says that it is an element of something.
std::string USpec(const Step& step) {
    const int arg2 = step.Own().arg2;
    if (step.terms.KindOf(step.first) != Kind::All) {
        return Line(step.Own().arg1) + " does not begin with ALL";
    }
    Term given = 0;
    if (!IsInstanceOfOne(step.terms, step.terms[step.first].a, step.result, given)) {
        return "it is not " + Line(step.Own().arg1) + " with one term for its variable";
    }
    if (!step.terms.IsTerm(given)) return "what stands for the variable is no term";
    if (given == 0 || step.terms.KindOf(given) == Kind::Name) {
        return arg2 == 0 ? NewName(step) : "it needs no second reference";
    }
    if (arg2 == 0) return "nothing says that the term is an element of something";
    const Node element = step.terms[step.second];
    if (element.kind != Kind::Element || element.a != given) {
        return Line(arg2) + " does not say that the term is an element of something";
    }
    return "";
}

// A statement about a term gives EXIST(v) and the statement with v in some of its places. With v
// in none it is said of nothing, and follows all the same.
std::string EGen(const Step& step) {
    if (step.terms.KindOf(step.result) != Kind::Exist) return "it does not begin with EXIST";
    Term given = 0;
    if (!IsInstanceOfOne(step.terms, step.terms[step.result].a, step.first, given)) {
        return "it is not " + Line(step.Own().arg1) + " with its variable for one term";
    }
    if (!step.terms.IsTerm(given)) return "its variable stands for no term";
    return "";
}

std::string Rename(const Step& step) {
    if (step.terms.KindOf(step.first) != Kind::All) {
        return Line(step.Own().arg1) + " does not begin with ALL";
    }
    return step.result == step.first
               ? ""
               : "it differs from " + Line(step.Own().arg1) + " in more than bound names";
}

namespace {

// Which of the quantifiers around one term is which of those around another: pairs up variables
// that stand in the same places.
class Reordered {
  public:
    Reordered(const Terms& terms, int count)
        : terms_(terms),
          there_(static_cast<std::size_t>(count), -1),
          here_(static_cast<std::size_t>(count), -1) {}

    bool Pairs(Term from, Term to, int depth) {
        const Node a = terms_[from];
        const Node b = terms_[to];
        if (a.loose <= depth) return from == to;
        if (a.kind != b.kind) return false;
        if (a.kind == Kind::Bound) {
            int& there = there_[static_cast<std::size_t>(a.a - depth)];
            int& here = here_[static_cast<std::size_t>(b.a - depth)];
            if (there == -1 && here == -1) {
                there = b.a - depth;
                here = a.a - depth;
            }
            return there == b.a - depth;
        }
        const int inner = depth + (IsQuantifier(a.kind) ? 1 : 0);
        return Pairs(a.a, b.a, inner) && Pairs(a.b, b.b, inner);
    }

  private:
    const Terms& terms_;
    std::vector<int> there_, here_;
};

}  // namespace

// The leading universal quantifiers in another order.
std::string Reorder(const Step& step) {
    const int count = LeadingAlls(step.terms, step.first);
    if (count < 2) return Line(step.Own().arg1) + " does not begin with two ALLs";
    Reordered reordered(step.terms, count);
    if (LeadingAlls(step.terms, step.result) == count &&
        reordered.Pairs(BehindQuantifiers(step.terms, step.first, count),
                        BehindQuantifiers(step.terms, step.result, count), 0)) {
        return "";
    }
    return "it differs from " + Line(step.Own().arg1) + " in more than the order of its ALLs";
}

}  // namespace tessaryn::check
