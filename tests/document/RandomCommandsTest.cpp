// Long random walks through the commands: whatever the user does, records, text and display agree.
#include <gtest/gtest.h>

#include <utility>

#include "Wanted.h"
#include "check/Check.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "document/RandomWalk.h"
#include "editing/Delete.h"
#include "entry/TestParser.h"
#include "expr/Expression.h"
#include "expr/NameList.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "output/WrittenProof.h"
#include "platform/Events.h"
#include "view/Display.h"
#include "view/PutStmt.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

// --- what depends on a statement, told statement by statement

bool Marked(int line) {
    return line > 0 && At(line).Flagged;
}

bool KnownAhead(const std::string& name, int line) {
    for (int i = line - 1; i >= 1;) {
        if (At(i).Flagged) {
            --i;
        } else if (IsConclusion(At(i))) {
            i = At(i).Arg1 - 1;
        } else if (HoldsName(At(i).FreeVars, name)) {
            return true;
        } else {
            --i;
        }
    }
    return false;
}

// Is the name in use outside the innermost premise around the line, with what is marked gone?
bool IsFixed(const std::string& name, int line) {
    int premise = line;
    while (premise >= 1 && (Marked(premise) || At(premise).Rule != Rule::Premise)) {
        const bool closes = !Marked(premise) && IsConclusion(At(premise));
        premise = (closes ? At(premise).Arg1 : premise) - 1;
    }
    for (int i = 1; i < premise;) {
        const bool closed = IsClosedPremise(At(i)) && At(i).Arg1 < premise && !Marked(At(i).Arg1);
        if (!Marked(i) && !closed && HoldsName(At(i).FreeVars, name)) return true;
        i = closed && !Marked(i) ? At(i).Arg1 : i + 1;
    }
    return premise < 1;
}

bool DependsOnMarks(int line) {
    const Statement& stmt = At(line);
    if (Marked(stmt.Arg1) || Marked(stmt.Arg2)) return true;
    if (IsConclusion(stmt) && Marked(line - 1)) return true;
    for (const std::string& name : NamesOf(stmt.FreeVars)) {
        const bool known = KnownAhead(name, line);
        const bool bringsIn = stmt.Rule == Rule::ESpec && stmt.SpecName == name;
        const bool mayBringIn = bringsIn || stmt.Rule == Rule::Premise || stmt.Rule == Rule::Axiom;
        if (known ? bringsIn : !mayBringIn) return true;
        if (IsFixed(name, line) != HoldsName(stmt.FixedVars, name)) return true;
    }
    return false;
}

void CheckFlagStmts(int stmt) {
    int count = 0;
    FlagStmts(stmt, count);
    const StatementTable swept = StmtTable;
    StmtTable.EditEach([](Statement& each) { each.Flagged = false; });
    int expected = 1;
    EditAt(stmt).Flagged = true;
    for (int line = stmt + 1; line <= StmtCount; ++line) {
        if (!DependsOnMarks(line)) continue;
        EditAt(line).Flagged = true;
        ++expected;
    }
    EXPECT_EQ(count, expected);
    for (int line = 1; line <= StmtCount; ++line) {
        EXPECT_EQ(swept[line].Flagged, At(line).Flagged)
            << "line " << line << " of a deletion of line " << stmt << " in\n"
            << ProofText.View();
    }
    StmtTable.EditEach([](Statement& each) { each.Flagged = false; });
}

// Of the open document: where Undo and Redo lead, and what the checker says of each new state.
class OtherLaws {
  public:
    std::string FirstBroken(RandomWalk& walk, bool undo) {
        std::string fault = undo ? walk.UndoAndRedo() : "";
        std::string bytes = WriteProof();
        if (!fault.empty() || bytes == accepted_) return fault;
        fault = check::CheckProof(bytes).sentence;
        accepted_ = std::move(bytes);
        return fault;
    }

  private:
    std::string accepted_;
};

TEST(RandomCommands, KeepTheDocumentInStep) {
    const int walks = Wanted("TESSARYN_WALKS", 44);
    int written = 0;
    for (int seed = 1; seed <= walks; ++seed) {
        StartHeadless();
        const RandomNumber random = RandomNumbers(static_cast<unsigned>(seed));
        RandomWalk walk(random);
        OtherLaws others;
        for (int step = 0; step < 500; ++step) {
            if (ProofText.size() > 12000) walk.Restart();
            walk.Step();
            std::string fault = BrokenDocumentLaw();
            if (fault.empty()) fault = others.FirstBroken(walk, step % 4 == 1);
            if (StmtCount > 0 && step % 4 == 0) {
                CheckFlagStmts(static_cast<int>(random(static_cast<std::size_t>(StmtCount))) + 1);
            }
            ASSERT_TRUE(fault.empty() && !HasFailure())
                << "seed " << seed << ", step " << step << ": " << fault << "\n"
                << walk.Script();
        }
        written += StmtCount;
    }
    EXPECT_GT(written, walks * 20) << "the walks get somewhere";
}

TEST(Limits, TheLastStatementIsRefusedBeforeAnythingIsWritten) {
    StartProof();
    while (StmtCount < MaxStatements - 2) AddLine("P & Q & R", Rule::Premise);
    RelayoutViewer();
    ResetFonts();
    ProofChanged = false;
    RuleMode = 15;
    Proof.RTB.SelStart = 0;
    Arg1Pending = 1;
    const std::size_t length = ProofText.size();
    Proof.RTB.Click();  // Split into three, with room for two
    EXPECT_EQ(ProofText.size(), length);
    EXPECT_FALSE(ProofChanged);
    EXPECT_EQ(Proof.StatusLine.GetText(), "Unable to process request");
    EXPECT_EQ(RuleMode, 0);
    RuleMode = 52;
    NewStmtText = "P";
    EXPECT_TRUE(WriteStatement());
    EXPECT_TRUE(WriteStatement());
    EXPECT_FALSE(WriteStatement());
    EXPECT_EQ(ParseError, "Unable to process request");
    EXPECT_EQ(StmtCount, MaxStatements);

    // From a box: one beep, whose reason is the writer's.
    const std::size_t beeps = Headless.Beeps.size();
    SendChoose(Proof.optOrNot);
    TestParser.RTB.SetText("P");
    SendChoose(TestParser.cmdContinue);
    EXPECT_EQ(TestParser.StatusLine.Caption, "Unable to process request");
    ASSERT_EQ(Headless.Beeps.size(), beeps + 1);
    EXPECT_EQ(Headless.Beeps.back(), "A proof holds at most 32767 statements.");
}

}  // namespace
}  // namespace tessaryn
