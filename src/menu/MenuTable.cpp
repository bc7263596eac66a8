// The menu bar and the tool buttons, with what each calls. Handler and shortcut of an item stand in
// one row; a row without a command is shown disabled.
#include "menu/MenuTable.h"

#include <algorithm>
#include <string>

#include "axioms/Axioms.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "editing/Find.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "menu/ClickTable.h"
#include "output/AboutTessaryn.h"
#include "output/HTML.h"
#include "output/Help.h"
#include "output/PrintProof.h"
#include "output/ProofCommands.h"
#include "output/SelectDir.h"
#include "output/Settings.h"
#include "rules/Rules.h"
#include "view/InsertMode.h"
#include "view/ShowHide.h"
#include "view/TextExchange.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

enum Flag : unsigned { None = 0, Hidden = 1, Checked = 2, Checkable = 4, Disabled = 8 };

using Command = void (*)();

struct MenuRow {
    int level;  // 0 a title in the bar; an item hangs under the nearest row above of a lower level
    MenuItem ProofForm::*item;
    const char* name;
    const char* caption;  // "-": a separator
    const char* shortcut = "";
    Command command = nullptr;
    unsigned flags = None;
    const char* failure = "Unable to process request";
};

template <int ruleMode>
void Click() {
    StartClickRule(ruleMode);
}

// The caption itself tells what to click.
void Instruction() {}

using P = ProofForm;

const MenuRow MenuRows[] = {
    {0, &P::mnuFile, "mnuFile", "&File"},
    {1, &P::optNew, "optNew", "&New", "", NewCommand},
    {1, &P::optOpen, "optOpen", "&Open", "", OpenCommand, None, OpenFailed},
    {1, &P::optSave, "optSave", "&Save", "", SaveCommand},
    {1, &P::optSaveAs, "optSaveAs", "Save &As", "", SaveAsCommand},
    {1, &P::optHTML, "optHTML", "Make HTML File   (*.html)", "", HTMLCommand},
    {1, &P::optPrint, "optPrint", "Print", "", PrintCommand},
    {1, &P::optSelectDir, "optSelectDir", "Select Default Directory", "", SelectDirCommand},
    {1, &P::optExit, "optExit", "E&xit", "", ExitCommand},
    {1, &P::optDebug, "optDebug", "&Debug", "", nullptr, Hidden},
    {1, &P::bar6, "bar6", "-", "", nullptr, Hidden},
    {1, &P::optFile1, "optFile1", "File 1", "", OpenRecentFile<1>, Hidden, OpenFailed},
    {1, &P::optFile2, "optFile2", "File 2", "", OpenRecentFile<2>, Hidden, OpenFailed},
    {1, &P::optFile3, "optFile3", "File 3", "", OpenRecentFile<3>, Hidden, OpenFailed},
    {1, &P::optFile4, "optFile4", "File 4", "", OpenRecentFile<4>, Hidden, OpenFailed},
    {1, &P::optFile5, "optFile5", "File 5", "", OpenRecentFile<5>, Hidden, OpenFailed},

    {0, &P::mnuEdit, "mnuEdit", "&Edit"},
    {1, &P::optUndo, "optUndo", "&Undo", "Ctrl+Z", Undo, Disabled, "Unable to complete Undo"},
    {1, &P::optRedo, "optRedo", "&Redo", "Ctrl+Y", Redo, Disabled, "Unable to complete Redo"},
    {1, &P::optInsert, "optInsert", "&Insert Mode ", "F2", ToggleInsertMode, Checkable},
    {1, &P::optCopy, "optCopy", "&Copy", "Ctrl+C", [] { Copy(Proof.RTB); }},
    {1, &P::DeleteAllRef, "DeleteAllRef", "Delete &ALL References", "F3", Click<DeleteAllRefMode>},
    {1, &P::DelAllSubsequent, "DelAllSubsequent", "Delete &Subsequent Lines", "F4",
     Click<Rule::DeleteAtSub>},
    {1, &P::optFind, "optFind", "&Find", "Ctrl+F", ShowFind},
    {1, &P::optRepeatFind, "optRepeatFind", "R&epeat Find", "F9", RepeatFind},
    {1, &P::optCaption, "optCaption", "C&aption", "", EditProofCaption},
    {1, &P::optIntro, "optIntro", "I&ntroduction", "", EditIntroduction},
    {1, &P::optComment, "optComment", "Comment            (Click Stmt Text)", "", Instruction},
    {1, &P::optToggleHighlight, "optToggleHighlight", "Toggle Highlight  (Click Stmt No.)", "",
     Click<ToggleHighlightMode>},
    {1, &P::optRichTextMode, "optRichTextMode", "Rich Text Mode", "",
     [] { Proof.optRichTextMode.Checked = !Proof.optRichTextMode.Checked; }, Checkable | Checked},

    {0, &P::mnuView, "mnuView", "&View"},
    {1, &P::optHideDetails, "optHideDetails", "Hide All Details", "F5", HideAllDetails},
    {1, &P::optShowDetails, "optShowDetails", "Show All Active Stmts", "F6", ShowAllActive},
    {1, &P::optShowLastDetails, "optShowLastDetails", "Show Last Active Stmts", "F7",
     ShowLastActive},
    {1, &P::optDetails, "optDetails",
     "Show / Hide Detail Block     (Dbl Click Highlighted Stmt No.)", "", Instruction},
    {1, &P::optPremiseBlock, "optPremiseBlock", "Show / Hide Premise Block  (Click \"Conclusion\")",
     "", Instruction},
    {1, &P::optShowAllStmts, "optShowAllStmts", "Show All Stmts", "F11", ShowAllStmts},
    {1, &P::optShowHighlights, "optShowHighlights", "Show Only Highlights and Conclusions", "F12",
     ShowHighlights},
    {1, &P::optTextSize, "optTextSize", "Text Size"},
    {2, &P::optSmallText, "optSmallText", "Small", "", ChooseTextSize<10>, Checkable},
    {2, &P::optMediumText, "optMediumText", "Medium", "", ChooseTextSize<12>, Checkable | Checked},
    {2, &P::optLargeText, "optLargeText", "Large", "", ChooseTextSize<14>, Checkable},

    {0, &P::mnuLogic, "mnuLogic", "&Logic"},
    {1, &P::optPremise, "optPremise", "Premise", "", Premise},
    {1, &P::optAxiom, "optAxiom", "Create Axiom", "", Axiom},
    {1, &P::barLogic1, "barLogic1", "-"},
    {1, &P::optJoin, "optJoin", "Join", "", Click<Rule::Join>},
    {1, &P::optSplit, "optSplit", "Split", "", Click<Rule::Split>},
    {1, &P::optDNegRemove, "optDNegRemove", "&Remove '~~'                      (Rem DNeg)", "",
     Click<Rule::RemDNeg>},
    {1, &P::optConclusion, "optConclusion", "Conclusion / Generalization", "", Conclusion, None,
     "Conclusion Rule: Unable to process request"},
    {1, &P::barLogic2, "barLogic2", "-"},
    {1, &P::optImplies, "optImplies", "'=>'      <-->   '&&'                (Implies-And)", "",
     Click<Rule::ImplyAnd>},
    {1, &P::optImliesOr, "optImliesOr", "'=>'      <-->   '|'                 (Implies-Or)", "",
     Click<Rule::ImplyOr>},
    {1, &P::optIff, "optIff", "'<=>'   <-->   '&&'                (Iff-And)", "",
     Click<Rule::IffAnd>},
    {1, &P::optDeMorgan, "optDeMorgan", "'&&'         <-->   '|'                 (De Morgan)", "",
     Click<Rule::DeMorgan>},
    {1, &P::barLogic3, "barLogic3", "-"},
    {1, &P::optDetachment, "optDetachment", "&Detachment                        (Detach)", "",
     Click<Rule::Detach>},
    {1, &P::optContrapositive, "optContrapositive", "&Contrapositive                    (Contra)",
     "", Click<Rule::Contra>},
    {1, &P::optCases, "optCases", "C&ases ", "", Click<Rule::Cases>},
    {1, &P::barLogic4, "barLogic4", "-"},
    {1, &P::optArbAntecedent, "optArbAntecedent", "P ---> Q => P                    (Arb Ante)", "",
     Click<Rule::ArbAnte>},
    {1, &P::optArbConsequent, "optArbConsequent", "P ---> ~P => Q                 (Arb Cons)", "",
     Click<Rule::ArbCons>},
    {1, &P::optArbOr, "optArbOr", "P ---> P | Q  or Q | P          (Arb Or)"},
    {2, &P::optArbOrRight, "optArbOrRight", "Insert Right  --->   P | Q", "",
     [] { StartArbOr(false); }},
    {2, &P::optArbOrLeft, "optArbOrLeft", "Insert Left    --->   Q | P", "",
     [] { StartArbOr(true); }},
    {1, &P::optOrNot, "optOrNot", "P | ~P                                 (Or Not)    ", "",
     OrNotCommand},
    {1, &P::barLogic5, "barLogic5", "-"},
    {1, &P::optQuantifierSwitch, "optQuantifierSwitch", "&Quantifier Switch                (Quant)",
     "", Click<Rule::Quant>},
    {1, &P::optSpec, "optSpec", "Specify                                (E Spec / U Spec)", "",
     Click<Rule::Spec>},
    {1, &P::optEGen, "optEGen", "&Existential Generalization    (E Gen)", "", Click<Rule::EGen>},
    {1, &P::optUGen, "optUGen", "&Universal  Gen                (U Gen)", "", nullptr,
     Hidden | Disabled},
    {1, &P::barLogic6, "barLogic6", "-"},
    {1, &P::optRename, "optRename", "Re&name", "", Click<Rule::Rename>},
    {1, &P::optReorder, "optReorder", "Re&order", "", Click<Rule::Reorder>},
    {1, &P::optCopyStatement, "optCopyStatement", "Copy statement", "", Click<Rule::Copy>},

    {0, &P::mnuSets, "mnuSets", "&Sets"},
    {1, &P::optSubset, "optSubset", "&Subset", "", Click<Rule::Subset>},
    {1, &P::optCartesianProd, "optCartesianProd", "&Cartesian Product", "",
     WriteScheme<Rule::CartProd>},
    {1, &P::optPowerSet, "optPowerSet", "&Power Set", "", WriteScheme<Rule::PowerSet>},
    {1, &P::optSetEquality, "optSetEquality", "Set &Equality", "", WriteScheme<Rule::SetEquality>},
    {1, &P::optNtupleEQ, "optNtupleEQ", "&N-tuple Equality", "", WriteScheme<Rule::NtupleEquality>,
     Hidden},
    {1, &P::barSets1, "barSets1", "-"},
    {1, &P::optReflexivity, "optReflexivity", "&Reflexivity (x=x)                  (Reflex)", "",
     Reflexivity},
    {1, &P::optSymmetry, "optSymmetry", "S&ymmetry  (x=y, y=x)         (Sym)", "",
     Click<Rule::Sym>},
    {1, &P::optSubstitution, "optSubstitution", "S&ubstitute", "", Click<Rule::Substitute>},
    {1, &P::barSets2, "barSets2", "-"},
    {1, &P::optFunctionAxioms, "optFunctionAxioms", "Function Axioms", "", nullptr, Hidden},
    {2, &P::optFunction, "optFunction", "Function Axiom", "", WriteScheme<Rule::Function>},
    {2, &P::optFunctionEquality, "optFunctionEquality", "Function Equality", "",
     WriteScheme<Rule::FnEquality>},
    {2, &P::optFunctionSpace, "optFunctionSpace", "Function Space", "", WriteScheme<Rule::FnSpace>},
    {1, &P::optSetOps, "optSetOps", "Set &Operations   ||, &&&&, `    (Set Ops)", "", nullptr,
     Hidden},
    {1, &P::barSets3, "barSets3", "-"},
    {1, &P::optUnionOfSets, "optUnionOfSets", "Union"},
    {2, &P::optPairwiseUnion, "optPairwiseUnion", "Pairwise", "",
     Write<Rule::PwUnion, PairwiseUnion>},
    {2, &P::optArbitraryUnion, "optArbitraryUnion", "Arbitrary", "",
     Write<Rule::ArbUnion, ArbitraryUnion>},
    {1, &P::optChoice, "optChoice", "Choice", "", Write<Rule::Choice, AxiomOfChoice>},

    {0, &P::mnuNumbers, "mnuNumbers", "&Numbers"},
    {1, &P::optNumberAxioms, "optNumberAxioms", "&Number Axioms    (n, 1, +)", "",
     WriteGroup<NumberAxioms>},
    {1, &P::optAdd, "optAdd", "&Induction Shortcut", "", InductionShortcut},
    {1, &P::optSumShortcut, "optSumShortcut", "&SUM Shortcut", "", nullptr, Hidden},
    {1, &P::optProdShortcut, "optProdShortcut", "PR&OD Shortcut", "", nullptr, Hidden},
    {1, &P::mnuAlgProperties, "mnuAlgProperties", "&Definitions"},
    {2, &P::optAddProperties, "optAddProperties", "Addition                         +", "",
     Define<AdditionDefinition>, Hidden},
    {2, &P::optSubtraction, "optSubtraction", "Subtraction                    -", "",
     Define<SubtractionDefinition>},
    {2, &P::optMultiplicationProperties, "optMultiplicationProperties",
     "Multiplication (asterisk)  *", "", Define<MultiplicationDefinition>},
    {2, &P::optDivision, "optDivision", "Division                          /", "",
     Define<DivisionDefinition>},
    {2, &P::optExponentPropeterties, "optExponentPropeterties", "Exponentiation              ^", "",
     Define<ExponentDefinition>},
    {2, &P::OptLessThan, "OptLessThan", "Less Than                      <", "",
     Define<LessThanDefinition>},
    {2, &P::optGreateThan, "optGreateThan", "Greater Than                 >", "",
     Define<GreaterThanDefinition>},
    {2, &P::optLessThanOrEqual, "optLessThanOrEqual", "Less Than or Equal        <=", "",
     Define<LessThanOrEqualDefinition>},
    {2, &P::optGreaterThanOrEqual, "optGreaterThanOrEqual", "Greater Than or Equal   >=", "",
     Define<GreaterThanOrEqualDefinition>},
    {2, &P::optSummationProperties, "optSummationProperties", "Summation                     SUM",
     "", nullptr, Hidden},
    {2, &P::optProductProperties, "optProductProperties", "Product                          PROD",
     "", nullptr, Hidden},
    {1, &P::optGroupAxioms, "optGroupAxioms", "&Group Axioms      (g, 0, +,_ )", "",
     WriteGroup<GroupAxioms>, Hidden},
    {1, &P::optRingAxioms, "optRingAxioms", "&Ring Axioms         (r, 0, 1, +, _ , *)", "",
     WriteGroup<RingAxioms>, Hidden},

    {0, &P::optHelp, "optHelp", "&Help"},
    {1, &P::optShowTip, "optShowTip", "Show Tip on Start-Up", "", ToggleShowTip,
     Checkable | Checked},
    {1, &P::optUserManual, "optUserManual", "User Manual / Tutorial", "", HelpCommand},
    {1, &P::optTessarynOnlline, "optTessarynOnlline", "Tessaryn Online", "", WebSiteCommand},
    {1, &P::optAbout, "optAbout", "About Tessaryn", "", AboutCommand},
};

struct ButtonRow {
    Button ProofForm::*button;
    const char* name;
    const char* caption;
    const char* toolTip;
    MenuItem ProofForm::*item;  // whose command it calls
};

const ButtonRow ButtonRows[] = {
    {&P::cmdNew, "cmdNew", "New", "Start a New Proof", &P::optNew},
    {&P::cmdOpen, "cmdOpen", "Open", "Open a  *.proof file", &P::optOpen},
    {&P::cmdSave, "cmdSave", "Save", "Save the Current Proof", &P::optSave},
    {&P::cmdPremise, "cmdPremise", "Prem", "Enter a Premise", &P::optPremise},
    {&P::cmdSpecify, "cmdSpecify", "Spec",
     "Apply Universal or Existential Specification Rule, eliminating leading quantifier",
     &P::optSpec},
    {&P::cmdConclusion, "cmdConclusion", "Conc", "Apply Conclusion Rule, generalizing if possible",
     &P::optConclusion},
    {&P::cmdUndo, "cmdUndo", "Undo", "Undo Previous Change", &P::optUndo},
    {&P::cmdRedo, "cmdRedo", "Redo", "Redo Previous Change", &P::optRedo},
    {&P::cmdIff, "cmdIff", "Iff ", "Apply IFF-AND Rule, introducing or eliminating '<=>'",
     &P::optIff},
    {&P::cmdDetach, "cmdDetach", "Det", "Apply Detachment Rule", &P::optDetachment},
    {&P::cmdEGen, "cmdEGen", "E Gen",
     "Apply Existential Generalization Rule, introducing EXIST quantifier", &P::optEGen},
    {&P::cmdHelp, "cmdHelp", "Help** ", "User Manual, Tutorial", &P::optUserManual},
    {&P::cmdSubAllOccurrences, "cmdSubAllOccurrences", "Subst",
     "Substitute source expression for target expression", &P::optSubstitution},
    {&P::cmdSplit, "cmdSplit", "Split",
     "Split an AND statement into 2 more statements, eliminating '&'", &P::optSplit},
    {&P::cmdJoin, "cmdJoin", "Join",
     "Join two statements to form an AND statement, introducing '&' ", &P::optJoin},
};

void FillItem(MenuItem& item, const MenuRow& row) {
    item.Name = row.name;
    item.Caption = row.caption;
    item.Shortcut = row.shortcut;
    item.Visible = (row.flags & Hidden) == 0;
    item.Checkable = (row.flags & Checkable) != 0;
    item.Checked = (row.flags & Checked) != 0;
    item.Enabled = row.command != nullptr && (row.flags & Disabled) == 0;
    if (row.command == nullptr) return;
    item.Click = [command = row.command, failure = row.failure] { RunHandler(command, failure); };
}

}  // namespace

void BuildMenus() {
    MenuItem* open[3] = {};  // the latest item of each level
    for (const MenuRow& row : MenuRows) {
        MenuItem& item = Proof.*row.item;
        FillItem(item, row);
        open[row.level] = &item;
        if (row.level == 0) {
            item.Enabled = true;
            Proof.MenuBar.push_back(&item);
        } else {
            MenuItem& parent = *open[row.level - 1];
            parent.Items.push_back(&item);
            parent.Enabled = parent.Enabled || item.Enabled;
        }
    }
}

void BuildButtons() {
    for (const ButtonRow& row : ButtonRows) {
        Button& button = Proof.*row.button;
        const MenuItem& item = Proof.*row.item;
        button.Name = row.name;
        button.Caption = row.caption;
        button.ToolTip = row.toolTip;
        button.Enabled = item.Enabled;
        button.Click = item.Click;
    }
}

}  // namespace tessaryn
