// The click rules: of each its prompt, and how it takes its clicks. A rule with a conversation of
// its own has a function for them; of the others the row is all there is, besides the inference.
#include "menu/ClickTable.h"

#include <algorithm>
#include <iterator>

#include "axioms/Axioms.h"
#include "document/Document.h"
#include "editing/Comment.h"
#include "editing/Delete.h"
#include "editing/ToggleConclusion.h"
#include "inference/Connectives.h"
#include "inference/Equality.h"
#include "inference/Quantifiers.h"
#include "inference/Subset.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

constexpr auto StayPending = AfterParseError::StayPending;

bool OnLeft() {
    return ArbOrLeft;
}

bool OnRight() {
    return !ArbOrLeft;
}

const ClickRow ClickRows[] = {
    {DeleteAllRefMode, "Delete All References: Click statement", Conversation(DeleteAllRef)},
    {Rule::Spec, "Specify:  Click any active quantified statement", Conversation(Spec), nullptr,
     SpecifyFrom},
    {Rule::EGen, "E Gen: Click a free variable or highlight an expression in an active statement",
     Conversation(ExistGenSelect)},
    {Rule::DeleteAtSub, "Delete All Subsequent Lines: Click statement", Conversation(DeleteAllSub)},
    {Rule::Quant, "Quant: Click a quantifier in any active statement",
     SignClick{Quant, QuantNeeds}},
    {Rule::RemDNeg, "Rem DNeg:  Click on the first ~ of a double negative in an active statement",
     SignClick{RemDNeg, RemDNegNeeds}},
    {Rule::Join, JoinPrompt, TwoClicks(Join)},
    {Rule::Split, "Split:  Click any active AND (&) statement", LineClick{Split}},
    {Rule::Detach, "Detach: Click on any active IMPLICATION (=>) statement...",
     LinesClick{DetachFrom, Detach,
                "Detach:  Click any active statement that matches LHS of line %1"}},
    {Rule::IffAnd, "Iff - And:  Click on any <=> or equivalent & in any active statement",
     SignClick{IffAnd, IffAndNeeds}},
    {Rule::Subset, "Subset:  Click any active SET-statement", Conversation(Subset), nullptr,
     SubsetFrom},
    {Rule::ImplyAnd, "Implies - And:  Click on => or & in any active statement",
     SignClick{ImplyAnd, ImplyAndNeeds, StayPending}},
    {Rule::Contra, "Contra:  Click on => in any active statement", SignClick{Contra, ContraNeeds}},
    {Rule::DeMorgan, "DeMorgan:  Click on '&' or '|' in any active statement",
     SignClick{DeMorgan, DeMorganNeeds}},
    {Rule::ArbOr, "Arb OR (Left):  Click any active statement",
     LineAndBoxClick{OrWithLeft,
                     "Arbitrary OR (Insert Left) Rule, Line %1:  Enter a logical expression"},
     OnLeft},
    {Rule::ArbOr, "Arb OR (Right):  Click any active statement",
     LineAndBoxClick{OrWithRight,
                     "Arbitrary OR (Insert Right) Rule, Line %1:  Enter a logical expression"},
     OnRight},
    {Rule::ArbAnte, "Arb Ante:  Click any active statement",
     LineAndBoxClick{ArbAnte, "Arbitrary Antecedent Rule, Line %1:  Enter a logical expression",
                     StayPending}},
    {Rule::ArbCons, "Arb Cons:  Click any active statement",
     LineAndBoxClick{ArbCons, "Arbitrary Consequent Rule, Line %1:  Enter a logical expression",
                     StayPending}},
    {Rule::Substitute,
     "Subst:  Select SOURCE expression. Click LHS or RHS of in any active EQUALS-statement...",
     TwoClicks(Subsitute), nullptr, SubstituteFrom},
    {Rule::Sym, "Symmetry:  Click = sign in any active statement",
     SignClick{Sym, SymNeeds, StayPending}},
    {ToggleHighlightMode, "Toggle Highlight:  Click any statement number but that on a Premise"},
    {Rule::ImplyOr, "Implies - Or:  Click on => or | in any active statement",
     SignClick{ImplyOr, ImplyOrNeeds, StayPending}},
    {Rule::Cases, "Cases: Click any active OR-statement of the form  P1 | P2 | P3 | ...",
     LinesClick{CasesFrom, Cases,
                "Cases: Click any active AND-statement of the form [P1=>Q] & [P2=>Q] & [P3=>Q] ...",
                StayPending, false}},
    {Rule::SetInsertMode, SetInsertModePrompt, Conversation(GetInsertLineNo)},
    {Rule::Rename, "Rename:  Click any active universally quantified statement",
     Conversation(Rename), nullptr, RenameFrom},
    {Rule::Reorder,
     "Reorder:  Click any active statement beginning with 2 or more universally quantifiers",
     Conversation(Reorder), nullptr, ReorderFrom},
    {Rule::Copy, "Make Copy:  Click on any active statement", LineClick{Copy, StayPending}},
};

const ClickRow* FindRow(int ruleMode) {
    const ClickRow* row =
        std::find_if(std::begin(ClickRows), std::end(ClickRows), [&](const ClickRow& each) {
            return each.ruleMode == ruleMode && (each.applies == nullptr || each.applies());
        });
    return row == std::end(ClickRows) ? nullptr : row;
}

bool HasTwoClicks(const ClickTarget& click) {
    return std::holds_alternative<LinesClick>(click) || std::holds_alternative<TwoClicks>(click);
}

struct TakeClick {
    void operator()(std::monostate) const { ToggleConclusion(); }
    void operator()(const LineClick& rule) const { ClickLine(rule); }
    void operator()(const SignClick& rule) const { ClickSign(rule); }
    void operator()(const LinesClick& rule) const { ClickLines(rule); }
    void operator()(const LineAndBoxClick& rule) const { ClickLineAndBox(rule); }
    void operator()(Conversation talk) const { talk(); }
    void operator()(TwoClicks talk) const { talk(FirstClick); }
};

}  // namespace

std::span<const ClickRow> ClickTable() {
    return ClickRows;
}

void StartClickRule(int ruleMode) {
    const ClickRow* row = FindRow(ruleMode);
    if (HasTwoClicks(row->click)) FirstClick = true;
    AwaitClick(ruleMode, row->prompt);
}

void ClickInDisplay() {
    ToggledNumber = 0;
    ClickedNumber = NumberAt(Proof.RTB.SelStart + 1);
    if (Proof.RTB.SelLength > 0 && RuleMode != Rule::EGen) return;
    if (StmtCount == 0) {
        RuleMode = 0;
        SetPrompt("");
        return EditIntroduction();
    }
    const ClickRow* row = FindRow(RuleMode);
    std::visit(TakeClick(), row == nullptr ? ClickTarget() : row->click);
}

void StartArbOr(bool left) {
    ArbOrLeft = left;
    StartClickRule(Rule::ArbOr);
}

}  // namespace tessaryn
