// The main window: the proof display, the status line, tool buttons and menus.
//
// The menu bar and the tool buttons are tables in MenuTable.cpp, which give each item its name,
// caption, shortcut and command.
#pragma once

#include <functional>
#include <string>

#include "platform/Form.h"
#include "platform/Platform.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

struct ProofForm : Form {
    ProofForm();

    // What the window does is for the floor that knows all commands to say: FillMainWindow.
    EventHandler WhenActivated, WhenClosed;
    std::function<bool(const KeyEvent&)> WhenKeyPressed;

    void Activated() override { WhenActivated(); }
    bool KeyPressed(const KeyEvent& key) override { return WhenKeyPressed(key); }
    void Close() override { WhenClosed(); }

    // The display takes the focus first; the tool buttons follow.
    RichTextBox RTB{*this, "RTB"};
    RichTextBox StatusLine{*this, "StatusLine"};
    Label InsertLineLabel{*this, "InsertLineLabel"};
    Timer Timer1{*this, "Timer1"};
    Timer RecoveryTimer{*this, "RecoveryTimer"};
    CommonDialog CommonDialog1;

    Button cmdNew{*this, ""}, cmdOpen{*this, ""}, cmdSave{*this, ""}, cmdPremise{*this, ""},
        cmdSpecify{*this, ""}, cmdConclusion{*this, ""}, cmdUndo{*this, ""}, cmdRedo{*this, ""},
        cmdIff{*this, ""}, cmdDetach{*this, ""}, cmdEGen{*this, ""}, cmdHelp{*this, ""},
        cmdSubAllOccurrences{*this, ""}, cmdSplit{*this, ""}, cmdJoin{*this, ""};

    MenuItem mnuFile{*this, ""}, optNew{*this, ""}, optOpen{*this, ""}, optSave{*this, ""},
        optSaveAs{*this, ""}, optHTML{*this, ""}, optPrint{*this, ""}, optSelectDir{*this, ""},
        optExit{*this, ""}, optDebug{*this, ""}, bar6{*this, ""}, optFile1{*this, ""},
        optFile2{*this, ""}, optFile3{*this, ""}, optFile4{*this, ""}, optFile5{*this, ""};

    MenuItem mnuEdit{*this, ""}, optUndo{*this, ""}, optRedo{*this, ""}, optInsert{*this, ""},
        optCopy{*this, ""}, DeleteAllRef{*this, ""}, DelAllSubsequent{*this, ""},
        optFind{*this, ""}, optRepeatFind{*this, ""}, optCaption{*this, ""}, optIntro{*this, ""},
        optComment{*this, ""}, optToggleHighlight{*this, ""}, optRichTextMode{*this, ""};

    MenuItem mnuView{*this, ""}, optHideDetails{*this, ""}, optShowDetails{*this, ""},
        optShowLastDetails{*this, ""}, optDetails{*this, ""}, optPremiseBlock{*this, ""},
        optShowAllStmts{*this, ""}, optShowHighlights{*this, ""}, optTextSize{*this, ""},
        optSmallText{*this, ""}, optMediumText{*this, ""}, optLargeText{*this, ""};

    MenuItem mnuLogic{*this, ""}, optPremise{*this, ""}, optAxiom{*this, ""}, barLogic1{*this, ""},
        optJoin{*this, ""}, optSplit{*this, ""}, optDNegRemove{*this, ""}, optConclusion{*this, ""},
        barLogic2{*this, ""}, optImplies{*this, ""}, optImliesOr{*this, ""}, optIff{*this, ""},
        optDeMorgan{*this, ""}, barLogic3{*this, ""}, optDetachment{*this, ""},
        optContrapositive{*this, ""}, optCases{*this, ""}, barLogic4{*this, ""},
        optArbAntecedent{*this, ""}, optArbConsequent{*this, ""}, optArbOr{*this, ""},
        optArbOrRight{*this, ""}, optArbOrLeft{*this, ""}, optOrNot{*this, ""},
        barLogic5{*this, ""}, optQuantifierSwitch{*this, ""}, optSpec{*this, ""},
        optEGen{*this, ""}, optUGen{*this, ""}, barLogic6{*this, ""}, optRename{*this, ""},
        optReorder{*this, ""}, optCopyStatement{*this, ""};

    MenuItem mnuSets{*this, ""}, optSubset{*this, ""}, optCartesianProd{*this, ""},
        optPowerSet{*this, ""}, optSetEquality{*this, ""}, optNtupleEQ{*this, ""},
        barSets1{*this, ""}, optReflexivity{*this, ""}, optSymmetry{*this, ""},
        optSubstitution{*this, ""}, barSets2{*this, ""}, optFunctionAxioms{*this, ""},
        optFunction{*this, ""}, optFunctionEquality{*this, ""}, optFunctionSpace{*this, ""},
        optSetOps{*this, ""}, barSets3{*this, ""}, optUnionOfSets{*this, ""},
        optPairwiseUnion{*this, ""}, optArbitraryUnion{*this, ""}, optChoice{*this, ""};

    MenuItem mnuNumbers{*this, ""}, optNumberAxioms{*this, ""}, optAdd{*this, ""},
        optSumShortcut{*this, ""}, optProdShortcut{*this, ""}, mnuAlgProperties{*this, ""},
        optAddProperties{*this, ""}, optSubtraction{*this, ""},
        optMultiplicationProperties{*this, ""}, optDivision{*this, ""},
        optExponentPropeterties{*this, ""}, OptLessThan{*this, ""}, optGreateThan{*this, ""},
        optLessThanOrEqual{*this, ""}, optGreaterThanOrEqual{*this, ""},
        optSummationProperties{*this, ""}, optProductProperties{*this, ""},
        optGroupAxioms{*this, ""}, optRingAxioms{*this, ""};

    MenuItem optHelp{*this, ""}, optShowTip{*this, ""}, optUserManual{*this, ""},
        optTessarynOnlline{*this, ""}, optAbout{*this, ""};

    bool FirstActivation = true;      // until the window has been activated once
    std::string CommandLineFile;      // proof named on the command line, until it is opened
    bool DoubleClickPending = false;  // a double click awaits its button-up
    int DoubleClickCaret = 0;         // caret to restore at that button-up, 0-based
};

inline ProofForm Proof;

// The title of the window for a proof: its caption and file name, either may be "". Without
// arguments that for the open one.
std::string TitleOf(const std::string& caption, const std::string& fileName);
std::string ProofTitle();

// Writes StatusLine, centred.
void SetPrompt(const std::string& text);

// Reports a failed Parse: beep, and "PARSER ERROR: " with ParseError in StatusLine.
void ReportParseError();

// Parses the expression in hand. On an error: beep, "PARSER ERROR: " with the message in
// StatusLine.
bool ParseOrReport();

inline constexpr const char* UnexpectedFailure = "Unable to process request";

// What StatusLine shows if the command under way fails.
inline std::string FailureMessage = UnexpectedFailure;

// The one wrapper round every event handler: anything unexpected beeps, ends the pending rule and
// shows `message` in StatusLine. Debug builds check the document behind each command.
void RunHandler(const EventHandler& handler, const std::string& message = UnexpectedFailure);

// The same where a box tells of it in its own way: `failed` is given what went wrong.
void RunHandler(const EventHandler& handler, const std::function<void(const char*)>& failed);

}  // namespace tessaryn
