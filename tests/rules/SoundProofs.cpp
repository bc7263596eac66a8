#include "rules/SoundProofs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "Steps.h"
#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/ActiveLines.h"
#include "entry/MyInputBox.h"
#include "entry/TestParser.h"
#include "entry/Warning.h"
#include "expr/NameList.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "platform/Events.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

// Some things have P and others Q, none both, so that a mixed-up name is soon a contradiction.
const char* const Axioms =
    "! EXIST(a):P(a) ; ! EXIST(a):Q(a) ; ! ALL(a):[Q(a) => ~P(a)]"
    " ; ! ALL(a):EXIST(b):R(a,b) ; ! ALL(a):[P(a) => S(a)]";

// The lines from `line` to `end`, with the values that the names ahead of them have.
bool LinesHold(Structure& structure, const std::vector<Expression>& lines, int line, int end) {
    if (line > end) return true;
    const Statement& stmt = StmtTable[line];
    const Expression& text = lines[static_cast<std::size_t>(line)];
    std::vector<std::string> fresh = NamesOf(stmt.FreeVars);
    std::erase_if(fresh, [&](const auto& name) { return structure.values.contains(name); });
    const auto rest = [&](int from, int to) { return LinesHold(structure, lines, from, to); };
    if (stmt.Rule == Rule::Premise) {
        const int last = IsOpenPremise(stmt) ? end : stmt.Arg1 - 1;
        const auto block = [&] { return !structure.Holds(text) || rest(line + 1, last); };
        return structure.Try(fresh, true, block) && (last == end || rest(stmt.Arg1, end));
    }
    // A name from an E Spec that a premise was put ahead of later outlives its block.
    const bool isSpecified = std::any_of(
        StmtTable.begin(), std::next(StmtTable.begin(), line), [&](const Statement& above) {
            return above.Rule == Rule::ESpec && fresh == std::vector{above.SpecName.Text()};
        });
    return structure.Try(fresh, !isSpecified,
                         [&] { return structure.Holds(text) && rest(line + 1, end); });
}

}  // namespace

bool ProofHolds(Structure& structure) {
    std::vector<Expression> lines(1);
    for (int line = 1; line <= StmtCount; ++line) lines.push_back(ParseExpression(StmtText(line)));
    return LinesHold(structure, lines, 1, StmtCount);
}

std::vector<Structure> StructuresOfTheAxioms() {
    EXPECT_EQ(Do(Axioms), "");
    std::vector<Structure> found;
    for (unsigned seed = 1; found.size() < 8; ++seed) {
        Structure structure(seed, found.size() < 5 ? 2 : 3);
        if (ProofHolds(structure)) found.push_back(structure);
    }
    return found;
}

ProvingUser::ProvingUser(unsigned seed) : random_(RandomNumbers(seed)) {
    EXPECT_EQ(Do(Axioms), "");
}

void ProvingUser::Step() {
    const std::pair<MenuItem*, int> commands[] = {
        {&Proof.optPremise, 0}, {&Proof.optPremise, 0},       {&Proof.optConclusion, 0},
        {&Proof.optSpec, 1},    {&Proof.optSpec, 1},          {&Proof.optSpec, 1},
        {&Proof.optJoin, 2},    {&Proof.optSplit, 1},         {&Proof.optDetachment, 9},
        {&Proof.optRename, 1},  {&Proof.optCopyStatement, 1}, {&Proof.optInsert, 1},
        {&Proof.optUndo, 0},    {&Proof.DeleteAllRef, 1}};
    // Seldom at the end of the list.
    const std::size_t most = random_(4) == 0 ? std::size(commands) : std::size(commands) - 2;
    const auto& [item, clicks] = commands[random_(most)];
    SendChoose(*item);
    AnswerForms([this] { AnswerForm(); });
    for (int click = 0; click < clicks && RuleMode != 0; ++click) ClickALine();
    RuleMode = 0;
}

void ProvingUser::ClickALine() {
    const std::vector<int> lines = ActiveLines(InsertionLimit());
    if (lines.empty()) return;
    const bool isRecent = random_(2) == 0 && lines.size() > 5;
    const std::size_t line = isRecent ? lines.size() - 1 - random_(5) : random_(lines.size());
    const Statement& stmt = StmtTable[lines[line]];
    SendClick(Proof.RTB, stmt.StartStmt - ViewOffset(stmt) - 1);
    AnswerForms([this] { AnswerForm(); });
}

void ProvingUser::AnswerForm() {
    static const char* const names[] = {"x", "y", "k", "m"};
    static const char* const premises[] = {"P(x)",        "Q(x)",         "P(y)", "Q(k)",
                                           "P(k)",        "Q(m)",         "x=k",  "R(x,y)",
                                           "P(x) & Q(y)", "ALL(b):R(b,x)"};
    static const char* const lists[] = {"x", "a", "b", "a, b", "y, x", "k, a, b"};
    Form& form = TopForm();
    if (&form == &TestParser) {
        const bool isTerm = RuleMode == Rule::USpec;
        TestParser.RTB.SetText(isTerm ? names[random_(4)] : premises[random_(10)]);
        SendChoose(TestParser.cmdContinue);
        if (TestParser.Visible) SendChoose(TestParser.cmdCancel);
    } else if (&form == &MyInputBox) {
        if (RuleMode == Rule::ESpec) MyInputBox.Text1.Text = names[random_(4)];
        if (RuleMode != Rule::ESpec && random_(2) == 0) MyInputBox.Text1.Text = lists[random_(6)];
        SendChoose(MyInputBox.Continue);
        if (MyInputBox.Visible) SendChoose(MyInputBox.Cancel);
    } else {
        SendChoose(Warning.cmdContinue);
    }
}

}  // namespace tessaryn
