// A user who proves something: whatever the editor writes is accepted by the checker, and holds in
// the structures of the axioms.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "check/Check.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "document/RuleNames.h"
#include "expr/NameList.h"
#include "rules/SoundProofs.h"

namespace tessaryn {
namespace {

// TESSARYN_WALKS=5000 makes a long run of it.
unsigned WalkCount() {
    const char* wanted = std::getenv("TESSARYN_WALKS");
    return wanted == nullptr ? 20 : static_cast<unsigned>(std::atoi(wanted));
}

// Whether a Conclusion has left a name free that an E Spec in its block brought in. The editor does
// so where the premise was put in ahead later; the checker does not let that pass.
bool AWitnessIsLeftFree() {
    for (int line = 1; line <= StmtCount; ++line) {
        const int start = IsConclusion(At(line)) ? At(line).Arg1 : line;
        for (int inside = start; inside < line; ++inside) {
            const bool isWitness = At(inside).Rule == Rule::ESpec &&
                                   HoldsName(At(inside).FixedVars, At(inside).SpecName);
            if (isWitness && HoldsName(At(line).FreeVars, At(inside).SpecName)) return true;
        }
    }
    return false;
}

TEST(CheckedWalks, EveryProofIsAcceptedAndHolds) {
    std::vector<Structure> structures = StructuresOfTheAxioms();
    std::map<int, int> written;  // by rule
    for (unsigned seed = 1; seed <= 5 * WalkCount(); ++seed) {
        ProvingUser user(seed);
        for (int step = 0; step < 60 && StmtCount < 40; ++step) {
            user.Step();
            const check::CheckedProof proof = check::CheckProof(WriteProof());
            ASSERT_EQ(proof.sentence.empty(), !AWitnessIsLeftFree())
                << "seed " << seed << ", step " << step << ", " << proof.sentence << '\n'
                << ProofText.View();
            if (step % 15 != 14) continue;
            ASSERT_TRUE(std::all_of(structures.begin(), structures.end(), ProofHolds))
                << "seed " << seed << '\n'
                << ProofText.View();
        }
        for (const Statement& stmt : StmtTable) ++written[stmt.Rule];
    }
    for (const int rule : {Rule::Conclusion, Rule::ESpec, Rule::USpec, Rule::Detach, Rule::Rename})
        EXPECT_GT(written[rule], static_cast<int>(WalkCount()) / 2) << RuleName(rule);
}

}  // namespace
}  // namespace tessaryn
