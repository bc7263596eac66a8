// Proofs that a random user builds from axioms that hold in known structures, and what they mean.
#pragma once

#include <vector>

#include "document/RandomWalk.h"
#include "rules/Structure.h"

namespace tessaryn {

inline constexpr int SoundAxioms = 5;  // the first lines of each such proof

// Structures in which they hold.
std::vector<Structure> StructuresOfTheAxioms();

// Whether all lines of the open proof hold in a structure: for whatever values the names of the
// premises have, and for some values of the names that E Spec brings in.
bool ProofHolds(Structure& structure);

// Starts with the axioms.
class ProvingUser {
  public:
    explicit ProvingUser(unsigned seed);
    void Step();

  private:
    void ClickALine();
    void AnswerForm();

    RandomNumber random_;
};

}  // namespace tessaryn
