#include "axioms/InductionForm.h"

#include "entry/EntryChecks.h"
#include "expr/Blanks.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "inference/Induction.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/Display.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

const char* const InvalidVariable = "Invalid bound variable";

using M = EditorMenus;

const PaletteEntry InductionPalette[] = {
    {&M::optALL, "optUniversal", "ALL():"},
    {&M::optExist, "optExistential", "EXIST():"},
    {&M::optSum, "optSum", "SUM( , , ):"},
    {&M::optProd, "optProd", "PROD( , , ):"},
    {&M::optLessThanOrEqual, "optLessThanOrEqaul", "<="},
    {&M::optComplement, "optComplement", "`"},
};

}  // namespace

InductionDialogue::InductionDialogue()
    : Form("InductionForm", " Induction Shortcut"), Menus(*this, InductionPalette) {
    const auto on = [this](EventHandler& event, void (InductionDialogue::*handler)()) {
        event = [this, handler] { RunHandler([&] { (this->*handler)(); }); };
    };
    on(Menus.optClear.Click, &InductionDialogue::Reset);
    on(cmdReset.Click, &InductionDialogue::Reset);
    on(cmdContinue.Click, &InductionDialogue::Continue);
    on(cmdCancel.Click, &InductionDialogue::Close);
    SaveRTB.Visible = false;
}

// Undo brings back what was entered at the last use.
void InductionDialogue::Activated() {
    SetPrompt("");
    BoundVarTextBox.FontSize = StmtFontSize;
    Reset();
}

void InductionDialogue::Close() {
    RuleMode = 0;
    Hide();
}

void InductionDialogue::Reset() {
    SaveRTB.TextRTF = RTB.TextRTF;
    Editor.Clear();
    BoundVarTextBox.Text.clear();
    BoundVarTextBox.SelStart = BoundVarTextBox.SelLength = 0;
    StatusLine.Caption.clear();
    BoundVarTextBox.SetFocus();
}

// --- the entries, each with its checks; false after a refusal

// `reason` goes with the beep where the message alone does not tell what to enter.
bool InductionDialogue::Refuse(const std::string& message, Control& focus,
                               const std::string& reason) {
    StatusLine.Caption = message;
    Beep(reason.empty() ? message : reason);
    focus.SetFocus();
    return false;
}

bool InductionDialogue::RefuseVar(const std::string& reason) {
    return Refuse(InvalidVariable, BoundVarTextBox, reason);
}

bool InductionDialogue::RefuseProperty(const std::string& message) {
    return Refuse(message, RTB);
}

bool InductionDialogue::TakeBoundVar() {
    BoundVarTextBox.Text = Trim(BoundVarTextBox.Text);
    if (const std::string fault = ForbiddenCharacter(BoundVarTextBox.Text); !fault.empty()) {
        return Refuse(fault, BoundVarTextBox);
    }
    const Expression entry = ParseExpression(BoundVarTextBox.Text);
    if (!entry.error.empty() || entry.nodes.size() != 2 || Root(entry).Rule != Node::Atom) {
        return RefuseVar("Enter a single name that begins with a small letter, such as k.");
    }
    var_ = Root(entry).Name;
    if (var_ != "1" && var_ != "n") return true;
    return RefuseVar("1 and n have a meaning of their own here: take another name.");
}

bool InductionDialogue::TakeProperty() {
    Editor.ClearMarks();
    RTB.SelStart = 0;
    NewStmtText = Editor.WholeExpression();
    if (const std::string fault = ForbiddenCharacter(NewStmtText); !fault.empty()) {
        return RefuseProperty(fault);
    }
    Parse();
    if (!ParseError.empty()) {
        Editor.MarkParseError();
        return RefuseProperty(ParseError);
    }
    if (const std::string fault = ForbiddenName(); !fault.empty()) return RefuseProperty(fault);
    if (!RootIsLogical()) return RefuseProperty("Expecting a logical expression");
    return CheckPropertyNames();
}

bool InductionDialogue::CheckPropertyNames() {
    const std::string name = FirstUnknownName({var_});
    if (!name.empty()) {
        return RefuseProperty("Variable '" + name + "' not found in an axiom or active premise");
    }
    // Put in for the variable, the number 1 would be caught.
    if (!BindsOne(InHand)) return true;
    Editor.MarkName("1");
    return Refuse(InvalidVariable, RTB,
                  "ALL or EXIST binds 1 in the property: bind another name there.");
}

void InductionDialogue::Continue() {
    StatusLine.Caption.clear();
    if (!TakeBoundVar() || !TakeProperty()) return;
    NewStmtText = Induction(InHand, var_).texts[0];
    Parse();
    if (ParseError == UnableToParse) {
        RefuseProperty(ParseError);  // too long with the property in it five times
    } else if (!ParseError.empty()) {
        RefuseVar("The property binds or applies " + var_ +
                  ", or binds n: take other names for these.");
    } else if (!WriteStatement()) {
        StatusLine.Caption = ParseError;
        RTB.SetFocus();
    } else {
        Close();
    }
}

}  // namespace tessaryn
