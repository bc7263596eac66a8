#include "axioms/SubsetFrm.h"

#include <string>

#include "entry/EntryChecks.h"
#include "expr/NameList.h"
#include "expr/Operands.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/Display.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

using M = EditorMenus;

const PaletteEntry SubsetPalette[] = {
    {&M::optALL, "optUniversal", "ALL():"},    {&M::optExist, "optExistential", "EXIST():"},
    {&M::optSum, "optSum", "SUM( , , )"},      {&M::optProd, "optProduct", "PROD( , , ):"},
    {&M::optGreaterThan, "optGreatThan", ">"}, {&M::optelement, "optElementOf", "@"},
    {&M::optComplement, "optComplement", "`"},
};

// The names of variables and functions in a parse, bound ones too.
std::vector<std::string> Atoms(const NodeList& nodes) {
    std::vector<std::string> names;
    for (const ParseRec& node : nodes) {
        if (node.Rule == Node::Atom) names.push_back(node.Name);
    }
    return names;
}

// A single name, or a flat list of that many different ones: the names come first in the table,
// then one n-tuple for each comma.
bool IsListOfNames(const NodeList& nodes, std::size_t count) {
    if (nodes.size() != 2 * count) return false;
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        if (nodes[i].Rule != (i <= count ? Node::Atom : Node::Ntuple)) return false;
    }
    return true;
}

std::string WhatToList() {
    if (SubsetOf.primes == 0) return "Enter a single name, such as a.";
    return "Enter " + std::to_string(SubsetOf.primes + 1) +
           " different names with commas between them.";
}

}  // namespace

SubsetDialogue::SubsetDialogue()
    : Form("SubsetFrm", " Subset Axiom - Enter Selection Criteria"), Menus(*this, SubsetPalette) {
    const auto on = [this](EventHandler& event, void (SubsetDialogue::*handler)()) {
        event = [this, handler] { RunHandler([&] { (this->*handler)(); }); };
    };
    on(Menus.optClear.Click, &SubsetDialogue::Clear);
    on(cmdContinue.Click, &SubsetDialogue::Continue);
    on(cmdCancel.Click, &SubsetDialogue::Close);
    SubsetName.Change = BoundVars.Change = [this] { StatusLine.Caption.clear(); };
    Editor.BindButtons(Tools);
}

void SubsetDialogue::Activated() {
    Editor.Start();
    EmptyEntries();
    SubsetName.FontSize = BoundVars.FontSize = StmtFontSize;
}

void SubsetDialogue::Close() {
    FinishRule(true);
    Hide();
}

void SubsetDialogue::EmptyEntries() {
    for (TextBox* box : {&SubsetName, &BoundVars}) {
        box->Text.clear();
        box->SelStart = box->SelLength = 0;
    }
    StatusLine.Caption.clear();
    SubsetName.SetFocus();
}

void SubsetDialogue::Clear() {
    Editor.Clear();
    EmptyEntries();
}

// --- the entries, each with its checks; false after a refusal

// `reason` goes with the beep where the message alone does not tell what to enter.
bool SubsetDialogue::Refuse(const std::string& message, Control& focus, const std::string& reason) {
    StatusLine.Caption = message;
    Beep(reason.empty() ? message : reason);
    focus.SetFocus();
    return false;
}

bool SubsetDialogue::RefuseAtName(const std::string& message, const std::string& name) {
    Editor.MarkName(name);
    return Refuse(message, SelectExpression);
}

bool SubsetDialogue::TakeSubsetName() {
    if (const std::string fault = ForbiddenCharacter(SubsetName.Text); !fault.empty()) {
        return Refuse(fault, SubsetName);
    }
    const Expression entry = ParseExpression(SubsetName.Text);
    if (!entry.error.empty() || !IsListOfNames(entry.nodes, 1)) {
        return Refuse("Invalid subset name", SubsetName,
                      "Enter a single name that begins with a small letter, such as y.");
    }
    subset_ = Root(entry).Name;
    if (HoldsName(Atoms(ParseExpression(SubsetOf.parent).nodes), subset_)) {
        return Refuse("Name of subset cannot be " + subset_, SubsetName);
    }
    return true;
}

bool SubsetDialogue::TakeBoundVars() {
    if (const std::string fault = ForbiddenCharacter(BoundVars.Text); !fault.empty()) {
        return Refuse(fault, BoundVars);
    }
    const Expression entry = ParseExpression(BoundVars.Text);
    if (!entry.error.empty() ||
        !IsListOfNames(entry.nodes, static_cast<std::size_t>(SubsetOf.primes) + 1)) {
        return Refuse("Invalid list of bound variables", BoundVars, WhatToList());
    }
    vars_ = Atoms(entry.nodes);
    for (const std::string& name : Atoms(ParseExpression(SubsetOf.parent).nodes)) {
        if (!HoldsName(vars_, name)) continue;
        return Refuse(name + " cannot be in list bound variables", BoundVars);
    }
    if (!HoldsName(vars_, subset_)) return true;
    return Refuse("Name of subset '" + subset_ + "'in list bound variables", BoundVars);
}

bool SubsetDialogue::TakeCriterion() {
    Editor.ClearMarks();
    SelectExpression.SelLength = 0;
    NewStmtText = Editor.WholeExpression();
    if (const std::string fault = ForbiddenCharacter(NewStmtText); !fault.empty()) {
        return Refuse(fault, SelectExpression);
    }
    Parse();
    if (!ParseError.empty()) {
        Editor.MarkParseError();
        return Refuse(ParseError, SelectExpression);
    }
    if (const std::string fault = ForbiddenName(); !fault.empty()) {
        return Refuse(fault, SelectExpression);
    }
    if (!RootIsLogical()) return Refuse("Expecting a logical expression", SelectExpression);
    return CheckCriterionNames();
}

bool SubsetDialogue::CheckCriterionNames() {
    // The subset's own name, which no line need know, has a message of its own.
    std::vector<std::string> own = vars_;
    own.push_back(subset_);
    if (const std::string name = FirstUnknownName(own); !name.empty()) {
        return RefuseAtName("Variable " + name + " not found in any previous active statement",
                            name);
    }
    if (!HoldsName(Atoms(ParseTable), subset_)) return true;
    return RefuseAtName("Invalid reference to name of subset '" + subset_ + "'", subset_);
}

void SubsetDialogue::Continue() {
    StatusLine.Caption.clear();
    if (!TakeSubsetName() || !TakeBoundVars() || !TakeCriterion()) return;
    NewStmtText = tessaryn::Subset(SubsetOf, subset_, vars_, InHand).texts[0];
    Parse();
    if (ParseError == UnableToParse) {
        Refuse(ParseError, SelectExpression);  // too long with the criterion in it
    } else if (!ParseError.empty()) {
        Refuse("Inconsistent usage of bound variables", SelectExpression,
               "ALL or EXIST binds a name in the criterion that has another meaning in the new "
               "line: bind another name there.");
    } else if (!WriteStatement()) {
        StatusLine.Caption = ParseError;
        SelectExpression.SetFocus();
    } else {
        Close();
    }
}

}  // namespace tessaryn
