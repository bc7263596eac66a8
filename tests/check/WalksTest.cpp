// The checker against a user who proves something: whatever the editor writes is accepted.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

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

// With quantifiers and names.
TEST(CheckedWalks, EveryProofIsAccepted) {
    int conclusions = 0;
    for (unsigned seed = 1; seed <= 5 * WalkCount(); ++seed) {
        ProvingUser user(seed);
        for (int step = 0; step < 60 && StmtCount < 40 && !AWitnessIsLeftFree(); ++step) {
            user.Step();
            const check::CheckedProof proof = check::CheckProof(WriteProof());
            ASSERT_EQ(proof.sentence.empty(), !AWitnessIsLeftFree())
                << "seed " << seed << ", step " << step << ", " << proof.sentence << '\n'
                << ProofText.View();
        }
        conclusions +=
            static_cast<int>(std::count_if(StmtTable.begin(), StmtTable.end(), IsConclusion));
    }
    EXPECT_GT(conclusions, static_cast<int>(WalkCount()));
}

}  // namespace
}  // namespace tessaryn
