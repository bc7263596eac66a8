// The checker against a user who does anything at all: whatever the editor writes is accepted.
#include <gtest/gtest.h>

#include <cstdlib>

#include "check/Check.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "document/RandomWalk.h"

namespace tessaryn {
namespace {

// TESSARYN_WALKS=5000 makes a long run of it.
unsigned WalkCount() {
    const char* wanted = std::getenv("TESSARYN_WALKS");
    return wanted == nullptr ? 20 : static_cast<unsigned>(std::atoi(wanted));
}

TEST(CheckedWalks, EveryDocumentIsAccepted) {
    std::size_t lines = 0;
    for (unsigned seed = 1; seed <= WalkCount(); ++seed) {
        StartHeadless();
        RandomWalk walk(RandomNumbers(seed));
        for (int step = 0; step < 500; ++step) {
            if (ProofText.size() > 12000) StartHeadless();
            walk.Step();
            const check::CheckedProof proof = check::CheckProof(WriteProof());
            ASSERT_EQ(proof.sentence, "") << "seed " << seed << ", step " << step << '\n'
                                          << ProofText.View();
        }
        lines += static_cast<std::size_t>(StmtCount);
    }
    EXPECT_GT(lines, WalkCount() * 20U) << "the walks get somewhere";
}

}  // namespace
}  // namespace tessaryn
