// Expressions as a logician sees them: a bound variable is no name but a number, the count of the
// quantifiers that stand between it and its own. So two expressions that differ in the names of
// bound variables only are one and the same term here, and a substitution cannot capture anything.
//
// Each term exists once in its Terms. Equal terms have equal numbers.
#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tessaryn::check {

// In the order of the signs: terms, relations of terms, formulas. What a kind's a and b are stands
// at its end: n a name's number, v a count of quantifiers, t a term.
enum class Kind : std::uint8_t {
    Bound,      // v      a bound variable; 0 belongs to the innermost quantifier around it
    Name,       // n      a variable or constant if small, a proposition if it has a capital
    Apply,      // t, t   a function or predicate and its argument
    Power,      // t, t
    Negative,   // t
    Times,      // t, t
    Divide,     // t, t
    Plus,       // t, t
    Minus,      // t, t
    Tuple,      // t, t   groups to the left: (a,b,c) is ((a,b),c)
    Equal,      // t, t
    Less,       // t, t
    LessEqual,  // t, t
    More,       // t, t
    MoreEqual,  // t, t
    Element,    // t, t
    Not,        // t
    And,        // t, t
    Or,         // t, t
    Implies,    // t, t
    Iff,        // t, t
    All,        // t      its body
    Exist,      // t      its body
};

using Term = int;                  // 0 is none
constexpr int DeepestTerm = 2000;  // nested deeper, a statement is not looked into

struct Node {
    Kind kind;
    int a, b;
    int loose;  // how many quantifiers would have to be put around it to bind all its Bounds
};

// A kind with one operand has 0 as its b. Term 0 binds nothing and holds nothing, so that a walk
// over both operands needs not ask how many there are.
bool IsQuantifier(Kind kind);
bool IsLeaf(Kind kind);  // has no operands

class Terms {
  public:
    Terms();
    Term Make(Kind kind, int a, int b = 0);
    const Node& operator[](Term term) const { return nodes_[static_cast<std::size_t>(term)]; }
    Kind KindOf(Term term) const { return (*this)[term].kind; }

    // The number of a name, the same for the same name.
    int NameNumber(std::string_view name);
    std::string_view NameText(int name) const { return names_[static_cast<std::size_t>(name)]; }
    int NameCount() const { return static_cast<int>(names_.size()); }

    bool HasCapital(int name) const;
    bool IsFormula(Term term) const;
    bool IsTerm(Term term) const;  // stands for a thing; no tuple. So may one that is not known, 0
    Term Small(std::string_view name) { return Make(Kind::Name, NameNumber(name)); }

  private:
    void Grow();

    std::vector<Node> nodes_;
    std::vector<Term> table_;  // by hash, 0 free; its length is a power of two
    std::deque<std::string> names_;
    std::unordered_map<std::string_view, int> numbers_;
};

}  // namespace tessaryn::check
