// Long random walks through the commands: whatever the user does, records, text and display agree.
#include <gtest/gtest.h>

#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "document/PutStmt.h"
#include "expr/Expression.h"
#include "expr/NameList.h"
#include "mainwindow/MyInputBox.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "mainwindow/TestParser.h"
#include "output/WrittenProof.h"
#include "platform/Events.h"
#include "view/Comment.h"
#include "view/Delete.h"
#include "view/Display.h"
#include "view/EditCaption.h"
#include "view/Find.h"
#include "view/InsertMode.h"
#include "view/Undo.h"
#include "view/Warning.h"

namespace tessaryn {
namespace {

class Walk {
  public:
    explicit Walk(unsigned seed) : seed_(seed) {
        // Each as often as users choose it, more or less.
        const std::pair<std::size_t, std::vector<MenuItem*>> frequencies[] = {
            {14, {&Proof.optPremise, &Proof.optJoin}},
            {12, {nullptr}},  // no command: clicks where no rule waits for one
            {12, {&Proof.optConclusion}},
            {8, {&Proof.optSplit, &Proof.optDetachment}},
            {7, {&Proof.optSpec, &Proof.optCopyStatement, &Proof.optUndo}},
            {5, {&Proof.optInsert, &Proof.optRedo}},
            {3, {&Proof.optAxiom, &Proof.DeleteAllRef}},
            {2, {&Proof.optHideDetails, &Proof.optShowDetails, &Proof.optShowLastDetails}},
            {2, {&Proof.optShowAllStmts, &Proof.optToggleHighlight}},
            {2, {&Proof.optFind, &Proof.optRepeatFind}},
            {1, {&Proof.DelAllSubsequent, &Proof.optShowHighlights}},
            {1, {&Proof.optIntro, &Proof.optCaption}},
        };
        for (const auto& [times, items] : frequencies) {
            for (MenuItem* item : items) commands_.insert(commands_.end(), times, item);
        }
        StartHeadless();
        Headless.NextStep = [this] {
            AnswerForm();
            return true;
        };
    }

    void Step() {
        if (ProofText.size() > 12000) StartHeadlessAgain();
        MenuItem* const command = commands_[Random(commands_.size())];
        if (command != nullptr) SendChoose(*command);
        if (Find.Visible) UseFind();
        for (std::size_t clicks = Random(3); clicks > 0; --clicks) ClickSomewhere();
        LookSomewhere();
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

    void ClickSomewhere() {
        if (RuleMode == Rule::Join) {
            Headless.Answers.push_back(Random(2) == 0 ? Answer::Yes : Answer::No);
        }
        const int place = static_cast<int>(Random(Proof.RTB.GetText().size() + 1));
        Random(4) == 0 ? SendDoubleClick(Proof.RTB, place) : SendClick(Proof.RTB, place);
        Headless.Answers.clear();
    }

    // As a window does, which asks for the formats of the lines in sight.
    void LookSomewhere() {
        const auto place = [this] {
            return static_cast<int>(Random(Proof.RTB.GetText().size() + 1));
        };
        const int first = place();
        Proof.RTB.RunsIn(first, place());
    }

    void UseFind() {
        static const char* const strings[] = {"P", "@", "Premise", "\r\n\t", "no such string"};
        Find.SearchStringTextBox.SetText(strings[Random(std::size(strings))]);
        SendChoose(Random(2) == 0 ? Find.optForward : Find.optBackward);
        if (Random(2) == 0) SendChoose(Find.ChkActiveOnly);
        SendChoose(Random(4) == 0 ? Find.cmdPaste : Find.cmdFind);
        if (Random(2) == 0) SendChoose(Find.cmdCancel);
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
        static const char* const comments[] = {"",
                                               "  ",
                                               "One line",
                                               "\r\n\r\nfirst\r\n\r\n\tlast\r\n",
                                               "\t",
                                               "a @ b\t",
                                               "{\\rtf1 \\b}<b>&amp;</b>\r\n1\tP",
                                               "\xC3\xA4\xE2\x82\xAC\r\n\xF0\x9F\x98\x80"};
        static const char* const names[] = {"u", "v", "x", ""};
        const bool cancel = Random(8) == 0;
        Form& form = TopForm();
        if (&form == &TestParser) {
            TestParser.RTB.SetText(entries[Random(std::size(entries))]);
            SendChoose(cancel ? TestParser.cmdCancel : TestParser.cmdContinue);
            if (TestParser.Visible) SendChoose(TestParser.cmdCancel);
        } else if (&form == &MyInputBox) {
            if (RuleMode == Rule::ESpec) MyInputBox.Text1.Text = names[Random(std::size(names))];
            SendChoose(cancel ? MyInputBox.Cancel : MyInputBox.Continue);
            if (MyInputBox.Visible) SendChoose(MyInputBox.Cancel);
        } else if (&form == &Comment) {
            Comment.CommentBox.SetText(comments[Random(std::size(comments))]);
            SendChoose(cancel ? Comment.Cancel : Comment.Continue);
        } else if (&form == &EditCaption) {
            EditCaption.RTB.SetText(comments[Random(std::size(comments))]);
            SendChoose(EditCaption.Continue);
        } else if (&form == &Warning) {
            SendChoose(Random(2) == 0 ? Warning.cmdCancel : Warning.cmdContinue);
        } else {
            form.Hide();
        }
    }

    unsigned seed_;
    std::vector<MenuItem*> commands_;
};

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

TEST(RandomCommands, KeepTheDocumentInStep) {
    int written = 0;
    for (unsigned seed = 1; seed <= 44; ++seed) {
        Walk walk(seed);
        for (int step = 0; step < 500; ++step) {
            walk.Step();
            ASSERT_EQ(CheckDocument(), "") << "seed " << seed << ", step " << step;
            ASSERT_EQ(CheckDisplay(), "") << "seed " << seed << ", step " << step;
            ASSERT_TRUE(ReadProof(WriteProof())) << "what can be saved can be opened";
            if (StmtCount > 0 && step % 4 == 0) {
                CheckFlagStmts(static_cast<int>(walk.Random(static_cast<std::size_t>(StmtCount))) +
                               1);
            }
            ASSERT_FALSE(HasFailure()) << "seed " << seed << ", step " << step;
        }
        written += StmtCount;
    }
    EXPECT_GT(written, 44 * 20) << "the walks get somewhere";
}

TEST(Limits, TheLastStatementIsRefusedBeforeAnythingIsWritten) {
    StartProof();
    while (StmtCount < MaxStatements - 2) AddLine("P & Q & R", Rule::Premise);
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

    // From a box: one beep, whose reason is the writer's.
    RuleMode = 37;
    TestParser.RTB.SetText("P");
    const std::size_t beeps = Headless.Beeps.size();
    TestParser.cmdContinue.Click();
    EXPECT_EQ(TestParser.StatusLine.Caption, "Unable to process request");
    ASSERT_EQ(Headless.Beeps.size(), beeps + 1);
    EXPECT_EQ(Headless.Beeps.back(), "A proof holds at most 32767 statements.");
}

}  // namespace
}  // namespace tessaryn
