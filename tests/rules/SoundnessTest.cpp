// Proofs that a random user builds, judged by what they mean. A rule that lets a false line in
// shows here.
#include <gtest/gtest.h>

#include <map>

#include "document/Document.h"
#include "document/RuleNames.h"
#include "rules/SoundProofs.h"

namespace tessaryn {
namespace {

TEST(Soundness, NoRuleLetsAFalseLineIn) {
    std::vector<Structure> structures = StructuresOfTheAxioms();
    std::map<int, int> written;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        ProvingUser user(seed);
        for (int step = 1; step <= 60 && StmtCount < 30; ++step) {
            user.Step();
            if (step % 15 != 0) continue;
            for (Structure& structure : structures) {
                ASSERT_TRUE(ProofHolds(structure)) << "seed " << seed << "\n" << ProofText.View();
            }
        }
        for (int line = 1; line <= StmtCount; ++line) {
            ++written[StmtTable[line].Rule];
        }
    }
    for (const int rule :
         {Rule::Conclusion, Rule::ESpec, Rule::USpec, Rule::Detach, Rule::Rename}) {
        EXPECT_GT(written[rule], 20) << RuleName(rule);
    }
}

}  // namespace
}  // namespace tessaryn
