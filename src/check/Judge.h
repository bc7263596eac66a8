// Goes through a proof from the first line to the last and lets each in, or stops.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "check/Check.h"
#include "check/ProofBytes.h"
#include "check/Schemes.h"
#include "check/Scope.h"
#include "check/Statement.h"
#include "check/Terms.h"

namespace tessaryn::check {

class Judge {
  public:
    explicit Judge(const ProofBytes& proof);

    // "" if all lines were let in.
    std::string Sentence();
    Verdict Result() const { return verdict_; }
    int Line() const { return line_; }  // the last that was looked at

    std::vector<char> LinesInForce() const;
    std::vector<Ground> TakeGrounds() { return std::move(grounds_); }
    // Lines that speak of a witness, each with the line of its E Spec.
    std::vector<std::pair<int, int>> TakeWitnesses() { return std::move(witnesses_); }

  private:
    const Record& Own() const { return proof_.records[static_cast<std::size_t>(line_)]; }
    Term TermOf(int line) const { return lineTerms_[static_cast<std::size_t>(line)]; }

    std::string BlockFault();
    std::string LineFault();
    std::string TextFault();
    std::string ListFault();
    std::string ReferenceFault() const;
    std::string RuleFault();
    std::string Misfit(const std::string& reason) const;
    std::string ColourFault() const;
    std::string Decline(const std::string& reason);
    void Enter();
    void NoteGround();
    std::string Scheme(std::string_view name, std::string_view everyN);
    int AxiomThatNames(std::string_view name);

    const ProofBytes& proof_;
    Terms terms_;
    Schemes schemes_;
    StatementReader reader_;
    Scope scope_;
    std::vector<int> depths_;      // closed blocks around each line
    std::vector<Term> lineTerms_;  // of the lines let in
    std::vector<char> reds_;       // of the line under work, for each of its free names
    long long patience_;
    std::vector<int> axiomsOf_;  // by name, the first Axiom that it is free in
    std::vector<Ground> grounds_;
    std::vector<std::pair<int, int>> witnesses_;
    Verdict verdict_ = Verdict::Accepted;
    int line_ = 0;
};

}  // namespace tessaryn::check
