// One line that asks to be let in, and what it may rest on.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "check/ProofBytes.h"
#include "check/Schemes.h"
#include "check/Scope.h"
#include "check/Terms.h"

namespace tessaryn::check {

struct Step {
    Terms& terms;
    Schemes& schemes;
    const Scope& scope;  // of the lines ahead
    const std::vector<Record>& records;
    int line;
    Term result;                 // what the line states
    Term first, second;          // what its two references state; 0 none. A Conclusion has the
                                 // premise first and the line ahead second
    std::span<const int> names;  // free in the line
    std::span<const char> reds;  // for each of them whether the record calls it red
    long long& patience;         // for searches; one that finds it used up answers no

    const Record& Own() const { return records[static_cast<std::size_t>(line)]; }
    const Record& At(int other) const { return records[static_cast<std::size_t>(other)]; }
};

// A rule: "" if the line follows, else why it does not. The references are in force and ahead.
using RuleTest = std::string (*)(const Step&);

// "" if each free name of the line was in the proof ahead of it, else which was not. A name that
// the record calls red may come from a block that has been closed since.
std::string NewName(const Step& step);

std::string Join(const Step& step);
std::string Split(const Step& step);
std::string Detach(const Step& step);
std::string IffAnd(const Step& step);
std::string ImplyAnd(const Step& step);
std::string ImplyOr(const Step& step);
std::string Contra(const Step& step);
std::string DeMorgan(const Step& step);
std::string RemDNeg(const Step& step);
std::string ArbOr(const Step& step);
std::string ArbAnte(const Step& step);
std::string ArbCons(const Step& step);
std::string OrNot(const Step& step);
std::string Cases(const Step& step);
std::string Copy(const Step& step);

std::string Quant(const Step& step);
std::string ESpec(const Step& step);
std::string USpec(const Step& step);
std::string EGen(const Step& step);
std::string Rename(const Step& step);
std::string Reorder(const Step& step);

std::string Substitute(const Step& step);
std::string Sym(const Step& step);
std::string Reflex(const Step& step);

std::string Premise(const Step& step);
std::string Conclusion(const Step& step);

std::string Axiom(const Step& step);
std::string SetAxiom(const Step& step);
std::string Definition(const Step& step);
std::string Subset(const Step& step);
std::string Induction(const Step& step);

}  // namespace tessaryn::check
