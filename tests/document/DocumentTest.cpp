// Documents as values.
#include "document/Document.h"

#include <gtest/gtest.h>

#include <utility>

#include "Steps.h"
#include "document/Invariants.h"

namespace tessaryn {
namespace {

// A copy is a document of its own: what becomes of the one leaves the other as it was.
TEST(Document, TwoAreHeldAtOnce) {
    std::string joins = "+ P & Q ; Split 1";
    for (int line = 4; line <= 200; ++line) joins += " ; Join 2 3";
    ASSERT_EQ(Do(joins), "");
    Document other = Doc;
    ASSERT_EQ(Do(joins + " ; Insert 2 ; + R ; DelAllSubsequent 100 ; count 99"), "");
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
