// The axioms of the menus.
#pragma once

#include <string>

#include "check/RuleNames.h"
#include "check/Terms.h"

namespace tessaryn::check {

// The axioms that have been asked for so far, as terms.
class Schemes {
  public:
    explicit Schemes(Terms& terms) : terms_(terms) {}

    // Whether the term is the set axiom of that rule, for some order. The orders are gone through
    // from the least up to the first that is as large.
    bool IsSetAxiom(Rule rule, Term term);

    // The sign that a Definition defines; "" if the term is none.
    std::string DefinedSign(Term term);
    // "number axiom 3" and the like; "" if the term is none of the groups'.
    std::string GroupAxiom(Term term);

  private:
    struct Orders {
        Rule rule;
        std::vector<Term> terms;  // from the least order on
        std::vector<std::size_t> sizes;
    };
    Term Read(std::string_view text);
    std::size_t Size(Term term) const;
    void ReadFixed();

    Terms& terms_;
    std::vector<Orders> orders_;
    std::vector<std::pair<Term, std::string>> definitions_, groups_;
};

}  // namespace tessaryn::check
