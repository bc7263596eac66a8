// Documents as values.
#include "document/Document.h"

#include <gtest/gtest.h>

#include <utility>

#include "Workbench.h"
#include "document/Invariants.h"

namespace tessaryn {
namespace {

// A copy is a document of its own: what becomes of the one leaves the other as it was.
TEST(Document, TwoAreHeldAtOnce) {
    std::string joins = EnterPremise("P & Q") + "choose optSplit\nclick 1\n";
    for (int line = 4; line <= 200; ++line) joins += "choose optJoin\nclick 2\nclick 3\n";
    ASSERT_EQ(Build(joins), "");
    Document other = Doc;
    const std::string deletions = "choose optInsert\nclick 2\n" + EnterPremise("R") +
                                  "choose DelAllSubsequent\nclick 100\nexpect count 99\n";
    ASSERT_EQ(Build(joins + deletions), "");
    EXPECT_EQ(other.StmtCount, 200);
    std::swap(Doc, other);
    EXPECT_EQ(CheckDocument(), "");
    EXPECT_EQ(StmtText(200), "P & Q");
    // Both go on from what they share.
    ProofText += "end";
    EXPECT_FALSE(ProofText == other.ProofText.View());
    std::swap(Doc, other);
    EXPECT_EQ(CheckDocument(), "");
    EXPECT_EQ(StmtText(2), "R");
}

}  // namespace
}  // namespace tessaryn
