// What the rules say to a stored statement that does not parse, as a damaged file may hold one.
#include <gtest/gtest.h>

#include "Steps.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "entry/TestParser.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "platform/Events.h"

namespace tessaryn {
namespace {

constexpr int Damaged = 3;

void BuildDamagedProof() {
    ASSERT_EQ(Do("! ALL(a):P(a) ; + f(x) @ s ; + A & B"), "");
    ProofText.Replace(static_cast<std::size_t>(StmtTable[Damaged].StartStmt - 1), 1, "$");
}

void ClickLine(int line) {
    const Statement& stmt = StmtTable[line];
    SendClick(Proof.RTB, stmt.StartStmt - ViewOffset(stmt) - 1);
}

TEST(DamagedStatement, IsReportedByEachRule) {
    const struct {
        MenuItem& item;
        std::vector<int> clicks;
        int modeAfterwards;
        bool beeps = true;
    } refusals[] = {
        {Proof.optJoin, {Damaged}, 14},       {Proof.optJoin, {2, Damaged}, 0},
        {Proof.optSplit, {Damaged}, 0},       {Proof.optDetachment, {Damaged}, 0},
        {Proof.optRename, {Damaged}, 0},      {Proof.optReorder, {Damaged}, 0},
        {Proof.optSpec, {Damaged}, 2, false}, {Proof.optConclusion, {}, 0},
    };
    for (const auto& refusal : refusals) {
        BuildDamagedProof();
        const std::size_t beeps = Headless.Beeps.size();
        SendChoose(refusal.item);
        for (const int line : refusal.clicks) ClickLine(line);
        const std::string& rule = refusal.item.Name;
        EXPECT_EQ(Proof.StatusLine.GetText(), "PARSER ERROR: 18. Illegal character $") << rule;
        EXPECT_EQ(RuleMode, refusal.modeAfterwards) << rule;
        EXPECT_EQ(Headless.Beeps.size() > beeps, refusal.beeps) << rule;
        EXPECT_EQ(StmtCount, 3) << rule;
    }
}

// The search goes up from the end and does not reach line 2.
TEST(DamagedStatement, StopsTheSearchForACompoundTerm) {
    BuildDamagedProof();
    SendChoose(Proof.optSpec);
    ClickLine(1);
    TestParser.RTB.SetText("f(x)");
    SendChoose(TestParser.cmdContinue);
    EXPECT_EQ(TestParser.StatusLine.Caption,
              "Free variable expression not found in active statement");
    EXPECT_EQ(StmtCount, 3);
}

}  // namespace
}  // namespace tessaryn
