// Long random walks through the commands: whatever the user does, records, text and display agree.
#include <gtest/gtest.h>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/Invariants.h"
#include "document/PutStmt.h"
#include "document/Statement.h"
#include "expr/Expression.h"
#include "mainwindow/MyInputBox.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/TestParser.h"
#include "platform/Events.h"
#include "view/InsertMode.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

class Walk {
  public:
    explicit Walk(unsigned seed) : seed_(seed) {
        StartHeadless();
        Headless.NextStep = [this] {
            AnswerForm();
            return true;
        };
    }

    void Step() {
        if (ProofText.size() > 20000) StartHeadlessAgain();
        const std::pair<int, MenuItem*> commands[] = {
            {12, &Proof.optPremise},      {2, &Proof.optAxiom},      {14, &Proof.optJoin},
            {8, &Proof.optSplit},         {8, &Proof.optDetachment}, {10, &Proof.optConclusion},
            {6, &Proof.optCopyStatement}, {5, &Proof.optInsert},     {8, &Proof.optUndo},
            {5, &Proof.optRedo}};
        std::size_t choice = Random(78);
        for (const auto& [weight, item] : commands) {
            if (choice < static_cast<std::size_t>(weight)) {
                SendChoose(*item);
                break;
            }
            choice -= static_cast<std::size_t>(weight);
        }
        for (std::size_t clicks = Random(3); clicks > 0; --clicks) {
            Headless.Answers.clear();
            Headless.Answers.push_back(Random(2) == 0 ? Answer::Yes : Answer::No);
            SendClick(Proof.RTB, static_cast<int>(Random(Proof.RTB.GetText().size() + 1)));
        }
        Headless.Answers.clear();
    }

    std::size_t Random(std::size_t limit) {
        seed_ = seed_ * 1664525U + 1013904223U;
        return (seed_ >> 8) % limit;
    }

  private:
    void StartHeadlessAgain() {
        const auto next = Headless.NextStep;
        StartHeadless();
        Headless.NextStep = next;
    }

    void AnswerForm() {
        static const char* const entries[] = {"P",
                                              "P => Q",
                                              "Q & R & P",
                                              "x=y",
                                              "~x=x",
                                              "P(x) & ~P(x)",
                                              "ALL(a):[a @ s => P(a)]",
                                              "ALL(a):Q(a,y)",
                                              "EXIST(b):f(b)=x",
                                              "LongName(x)\r\n=> AnotherLongName(y) & P"};
        Form& form = TopForm();
        if (&form == &TestParser) {
            TestParser.RTB.SetText(entries[Random(std::size(entries))]);
            SendChoose(Random(8) == 0 ? TestParser.cmdCancel : TestParser.cmdContinue);
            if (TestParser.Visible) SendChoose(TestParser.cmdCancel);
        } else if (&form == &MyInputBox) {
            SendChoose(Random(8) == 0 ? MyInputBox.Cancel : MyInputBox.Continue);
            if (MyInputBox.Visible) SendChoose(MyInputBox.Cancel);
        } else {
            form.Hide();
        }
    }

    unsigned seed_;
};

std::string DisplayFromRecords() {
    std::string text =
        IntroEnd > 0 ? ProofText.substr(0, static_cast<std::size_t>(IntroEnd) + 4) : "";
    for (int line = 1; line <= StmtCount; ++line) {
        const Statement& stmt = StmtTable[static_cast<std::size_t>(line)];
        if (stmt.Visible) text += ProofSlice(stmt.StartLine, stmt.EndRule + 4);
    }
    return text;
}

TEST(RandomCommands, KeepTheDocumentInStep) {
    int written = 0;
    for (unsigned seed = 1; seed <= 40; ++seed) {
        Walk walk(seed);
        for (int step = 0; step < 250; ++step) {
            walk.Step();
            ASSERT_EQ(CheckDocument(), "") << "seed " << seed << ", step " << step;
            ASSERT_EQ(Proof.RTB.GetText().size(), DisplayFromRecords().size());
        }
        written += StmtCount;
    }
    EXPECT_GT(written, 40 * 20) << "the walks get somewhere";
}

TEST(Limits, TheLastStatementIsRefusedBeforeAnythingIsWritten) {
    ASSERT_EQ(Build(EnterPremise("P & Q & R")), "");
    const Statement first = StmtTable[1];
    while (StmtCount < MaxStatements - 2) {
        Statement next = first;
        const std::string number = std::to_string(++StmtCount);
        const int start = static_cast<int>(ProofText.size());
        const int more = static_cast<int>(number.size()) - 1;
        ShiftIndexes(next, start);
        next.StartStmt += more;
        next.EndStmt += more;
        next.StartRule += more;
        next.EndRule += more;
        StmtTable.push_back(next);
        ProofText += number + "\tP & Q & R\r\n\tPremise\r\n\r\n";
    }
    RelayoutViewer();
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
}

}  // namespace
}  // namespace tessaryn
