// The table of rules, and what a click in the display does.
#include "mainwindow/RuleModes.h"

#include <array>

#include "axioms/Axioms.h"
#include "document/Document.h"
#include "document/PutStmt.h"
#include "expr/Parse.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "rules/Rules.h"
#include "view/Comment.h"
#include "view/Delete.h"
#include "view/InsertMode.h"
#include "view/ShowHide.h"

namespace tessaryn {
namespace {

// From any active statement, writes the same statement again.
void CopyStatement() {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) return BeepNoActiveStmt();
    Arg1Pending = line;
    Arg2Pending = 0;
    Parse();
    if (!ParseError.empty()) return ReportParseError();
    FinishRule(WriteStatement());
    Proof.RTB.SetFocus();
}

constexpr bool TwoClicks = true;

const std::array<RuleRow, RuleCount + 1> RuleTable = {{
    {0, "", ""},
    {1, "Premise", ""},
    {2, "Spec", "Specify:  Click any active quantified statement", false, Spec},
    {3, "E Spec", ""},
    {4, "U Spec", ""},
    {5, "E Gen", "E Gen: Click a free variable or highlight an expression in an active statement",
     false, ExistGenSelect},
    {6, "U Gen", ""},
    {7, "Conclusion", ""},
    {8, "Delete at ref", ""},
    {9, "Delete at sub", "Delete All Subsequent Lines: Click statement", false, DeleteAllSub},
    {10, "Insert", ""},
    {11, "Quant", "Quant: Click a quantifier in any active statement", false, Quant},
    {12, "Rem DNeg", "Rem DNeg:  Click on the first ~ of a double negative in an active statement",
     false, RemDNeg},
    {13, "Ins DNeg", ""},
    {14, "Join", JoinPrompt, TwoClicks, [] { Join(FirstClick); }},
    {15, "Split", "Split:  Click any active AND (&) statement", false, Split},
    {16, "Detach", "Detach: Click on any active IMPLICATION (=>) statement...", TwoClicks,
     [] { Detach(FirstClick); }},
    {17, "Iff-And", "Iff - And:  Click on any <=> or equivalent & in any active statement", false,
     IffSplit},
    {18, "Subset", "Subset:  Click any active SET-statement", false, Subset},
    {19, "Imply-And", "Implies - And:  Click on => or & in any active statement", false,
     ImpliesAnd},
    {20, "Contra", "Contra:  Click on => in any active statement", false, Contrapostive},
    {21, "DeMorgan", "DeMorgan:  Click on '&' or '|' in any active statement", false, DeMorgan},
    {22, "Arb Or", "", false, ArbOr},
    {23, "Arb Ante", "Arb Ante:  Click any active statement", false, ArbPrecedent},
    {24, "Arb Cons", "Arb Cons:  Click any active statement", false, ArbAntecedent},
    {25, "Cart Prod", ""},
    {26, "Power Set", ""},
    {27, "Function", ""},
    {28, "Substitute",
     "Subst:  Select SOURCE expression. Click LHS or RHS of in any active EQUALS-statement...",
     TwoClicks, [] { Subsitute(FirstClick); }},
    {29, "Set Equality", ""},
    {30, "Reflex", ""},
    {31, "Sym", "Symmetry:  Click = sign in any active statement", false, Symmetry},
    {32, "Number Axioms", "Toggle Highlight:  Click any statement number but that on a Premise"},
    {33, "Induction", ""},
    {34, "Imply-Or", "Implies - Or:  Click on => or | in any active statement", false, ImpliesOr},
    {35, "Definition", ""},
    {36, "Cases", "Cases: Click any active OR-statement of the form  P1 | P2 | P3 | ...", TwoClicks,
     [] { Cases(FirstClick); }},
    {37, "Or Not", ""},
    {38, "Set Ops", ""},
    {39, "Implies", ""},
    {40, "Iff", ""},
    {41, "Or", ""},
    {42, "Sum", ""},
    {43, "Prod", ""},
    {44, "Set Insert Mode", "Insert Mode: Click insert line for an ACTIVE statement", false,
     GetInsertLineNo},
    {45, "Axiom", ""},
    {46, "Rename", "Rename:  Click any active universally quantified statement", false, Rename},
    {47, "Reorder",
     "Reorder:  Click any active statement beginning with 2 or more universally quantifiers", false,
     Reorder},
    {48, "Ntuple Equality", ""},
    {49, "Pw Union", ""},
    {50, "Arb Union", ""},
    {51, "Choice", ""},
    {52, "Copy", "Make Copy:  Click on any active statement", false, CopyStatement},
    {53, "Fn Space", ""},
    {54, "Fn Equality", ""},
}};

const RuleRow DeleteAllRefRow = {DeleteAllRefMode, "", "Delete All References: Click statement",
                                 false, DeleteAllRef};

}  // namespace

const char* RuleName(int number) {
    return IsRuleNumber(number) ? RuleTable[static_cast<std::size_t>(number)].name : "";
}

const RuleRow* FindRule(int ruleMode) {
    if (ruleMode == DeleteAllRefMode) return &DeleteAllRefRow;
    return IsRuleNumber(ruleMode) ? &RuleTable[static_cast<std::size_t>(ruleMode)] : nullptr;
}

void StartClickRule(int ruleMode, const std::string& prompt) {
    RuleMode = ruleMode;
    SetPrompt(prompt);
    if (FindRule(ruleMode)->twoClicks) FirstClick = true;
    if (Proof.RTB.SelLength > 0) Proof.RTB.SelLength = 0;
    Proof.RTB.SetFocus();
}

void StartClickRule(int ruleMode) {
    StartClickRule(ruleMode, FindRule(ruleMode)->prompt);
}

void FinishRule(bool written) {
    RuleMode = 0;
    if (written) SetPrompt("");
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
    const RuleRow* row = FindRule(RuleMode);
    if (row != nullptr && row->click != nullptr) return row->click();
    ToggleConclusion();
}

}  // namespace tessaryn
