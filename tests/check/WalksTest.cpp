// A user who proves something: whatever the editor writes is accepted by the checker, and holds in
// the structures of the axioms.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>

#include "Wanted.h"
#include "check/Check.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "document/RuleNames.h"
#include "expr/NameList.h"
#include "rules/SoundProofs.h"

namespace tessaryn {
namespace {

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
    const int walks = 5 * Wanted("TESSARYN_WALKS", 20);
    for (int seed = 1; seed <= walks; ++seed) {
        ProvingUser user(static_cast<unsigned>(seed));
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
        EXPECT_GT(written[rule], walks / 10) << RuleName(rule);
}

}  // namespace
}  // namespace tessaryn
