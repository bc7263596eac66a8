// The rules that work on one sign or term of a statement, against small worlds: whatever is
// clicked, a rewrite means the same as the statement, and what E Gen and Substitute write follows.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Keyboard.h"
#include "document/Document.h"
#include "expr/Parse.h"
#include "expr/RandomText.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "platform/Events.h"
#include "rules/Generalize.h"
#include "rules/Structure.h"
#include "rules/Substitution.h"

namespace tessaryn {
namespace {

// The lines of the proof that are true in a world of two things, one bit each.
unsigned TrueLines(int number) {
    Structure world(static_cast<unsigned>(number), 2);
    unsigned lines = 0;
    for (int line = 1; line <= StmtCount; ++line) {
        if (world.Holds(ParseExpression(StmtText(line)))) lines |= 1U << line;
    }
    return lines;
}

// Is the last line true in each world in which the others are, and, if it is to mean the same, in
// no other?
bool LastLineHolds(bool sameMeaning) {
    for (int number = 1; number <= 24; ++number) {
        const unsigned lines = TrueLines(number);
        const unsigned last = 1U << StmtCount;
        const bool othersHold = (lines | last) == 2 * last - 2;
        if (othersHold != ((lines & last) != 0) && (othersHold || sameMeaning)) return false;
    }
    return true;
}

// Clicks on each place of line 1 while a rule is pending; counts what is written.
struct Clicks {
    void At(MenuItem& rule, bool sameMeaning) {
        const int count = StmtCount;
        const int end = StmtTable[1].EndStmt;
        for (int place = StmtTable[1].StartStmt - 1; place < end; ++place) {
            SendChoose(rule);
            if (prepare) prepare();
            SendClick(Proof.RTB, place);
            AnswerForms(answer);
            RuleMode = 0;
            if (StmtCount == count) continue;
            ++written[StmtTable.back().Rule];
            ASSERT_TRUE(LastLineHolds(sameMeaning)) << ProofText.View();
            SendChoose(Proof.optUndo);
        }
    }

    std::function<void()> prepare;  // what is done ahead of the click
    std::function<void()> answer;   // in a form
    std::map<int, int> written;     // by rule
};

TEST(Rewrites, KeepTheMeaning) {
    Random random(20261123);
    Clicks clicks;
    for (int round = 0; round < 400; ++round) {
        std::string formula = RandomFormula(random, 4);
        const std::string no = round % 6 == 0 ? "" : "~";
        if (round % 3 == 0) formula = "[[" + formula + "]=>P]&[P=>" + no + "[" + formula + "]]";
        if (round % 3 == 1) formula = "Q|~~[" + formula + "]";
        if (!Build(EnterPremise(formula)).empty() || StmtCount != 1) continue;
        for (MenuItem* rule : {&Proof.optImplies, &Proof.optImliesOr, &Proof.optContrapositive,
                               &Proof.optDeMorgan, &Proof.optIff, &Proof.optDNegRemove,
                               &Proof.optQuantifierSwitch, &Proof.optSymmetry}) {
            clicks.At(*rule, true);
            if (HasFatalFailure()) return;
        }
    }
    EXPECT_EQ(clicks.written.size(), 8U);
    for (const auto& [rule, count] : clicks.written) EXPECT_GT(count, 10) << RuleName(rule);
}

// Names are few, so that those that are put in meet others of the statement.
TEST(RulesOnTerms, WriteWhatFollows) {
    Random random(20261123);
    const auto oneOf = [&](std::vector<std::string> texts) {
        return texts[random() % texts.size()];
    };
    const auto name = [&] { return oneOf({"x", "y", "z", "a", "f", "1"}); };
    Clicks clicks;
    for (int round = 0; round < 300; ++round) {
        const std::string equation =
            name() + "=" + oneOf({name(), "f(" + name() + ")", name() + "+x"});
        const std::string formula =
            oneOf({"", "ALL(x):", "EXIST(y):"}) + "[" + RandomFormula(random, 3) + "]";
        const std::string script = EnterPremise(formula) + EnterPremise(equation);
        if (!Build(script).empty() || StmtCount != 2) continue;
        clicks.answer = [&] {
            Form& form = TopForm();
            if (&form == &Generalize) ReplaceByTyping(Generalize.BoundVarTextBox, name());
            auto& box = static_cast<OccurrenceForm&>(form);
            if (random() % 2 == 0) SendChoose(box.cmdSelectAll);
            for (int click = 0; click < 6; ++click) {
                SendClick(box.RTB, static_cast<int>(random() % box.RTB.GetText().size()));
            }
            if (!SendChoose(box.cmdContinue) || form.Visible) SendChoose(box.cmdCancel);
        };
        clicks.prepare = nullptr;
        clicks.At(Proof.optEGen, false);
        clicks.prepare = [&] {
            const Statement& stmt = StmtTable[2];
            SendClick(Proof.RTB, stmt.StartStmt - 1 + static_cast<int>(random() % 3));
        };
        clicks.At(Proof.optSubstitution, false);
        if (HasFatalFailure()) return;
    }
    for (const int rule : {Rule::EGen, Rule::Substitute})
        EXPECT_GT(clicks.written[rule], 100) << RuleName(rule);
}

}  // namespace
}  // namespace tessaryn
