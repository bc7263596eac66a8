#include "mainwindow/TestParser.h"

#include <exception>

#include "expr/Parse.h"
#include "mainwindow/EntryChecks.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/ArbitraryOperand.h"
#include "rules/Rules.h"
#include "view/InsertMode.h"

namespace tessaryn {
namespace {

std::string CheckPremise() {
    const std::string logical = RootIsLogical() ? "" : "Expecting a logical expression";
    // The later message is the one shown.
    const std::string names = InsertMode ? CheckPremiseNames() : "";
    return names.empty() ? logical : names;
}

std::string CheckAxiom() {
    return RootIsLogical() ? CheckAxiomNames() : "Expecting a logical expression";
}

// What a mode tests behind a successful parse, and for some rules the writing of the statement.
// Gives the message of the refusal, or "" with ParseError from the writing.
struct EntryMode {
    int ruleMode;
    std::string (*accept)();
};

const EntryMode EntryModes[] = {
    {Rule::Premise, CheckPremise}, {Rule::Axiom, CheckAxiom},        {Rule::USpec, AcceptUSpec},
    {Rule::ArbOr, AcceptArbOr},    {Rule::ArbAnte, AcceptArbAnte},   {Rule::ArbCons, AcceptArbCons},
    {Rule::OrNot, AcceptOrNot},    {Rule::Reflex, AcceptReflexTerm},
};

bool KeepsHint(int ruleMode) {
    return ruleMode == Rule::Premise || ruleMode == Rule::Axiom || ruleMode == Rule::USpec;
}

}  // namespace

TestParserForm::TestParserForm() : Form("TestParser") {
    const auto on = [this](Button& button, void (TestParserForm::*handler)()) {
        button.Click = [this, handler] { RunHandler([&] { (this->*handler)(); }); };
    };
    on(cmdContinue, &TestParserForm::Continue);
    on(cmdCancel, &TestParserForm::Close);
    on(cmdParse, &TestParserForm::CheckEntry);
    cmdParse.Visible = false;
    Editor.BindButtons(Tools);
}

void TestParserForm::Activated() {
    Editor.Start();
    if (!KeepsHint(RuleMode)) StatusLine.Caption.clear();
}

void TestParserForm::Close() {
    ParseError = "Cancelled";
    Hide();
    RuleMode = 0;
    SetPrompt("");
}

void TestParserForm::Continue() {
    try {
        CheckEntry();
    } catch (const std::exception&) {
        Refuse("Unable to process request");
    }
    if (ParseError.empty()) {
        Hide();
        SetPrompt("");
        return;
    }
    ParseError.clear();
    RTB.SetFocus();
    RTB.SelLength = 0;
}

void TestParserForm::Refuse(const std::string& message) {
    ParseError = message;
    StatusLine.Caption = message;
    Beep(message);
}

void TestParserForm::CheckEntry() {
    RTB.SetFocus();
    if (const std::string fault = ForbiddenCharacter(RTB.GetText()); !fault.empty()) {
        return Refuse(fault);
    }
    Editor.ClearMarks();
    NewStmtText = Editor.Expression();
    Parse();
    StatusLine.Caption = ParseError;
    if (!ParseError.empty()) {
        Beep(ParseError);
        Editor.MarkParseError();
        return;
    }
    if (const std::string fault = ForbiddenName(); !fault.empty()) return Refuse(fault);
    CheckByMode();
    RTB.SelLength = 0;
}

void TestParserForm::CheckByMode() {
    for (const EntryMode& mode : EntryModes) {
        if (mode.ruleMode != RuleMode) continue;
        const std::string fault = mode.accept();
        if (!fault.empty()) Refuse(fault);
        StatusLine.Caption = ParseError;  // a failed writing has beeped by itself
        return;
    }
}

}  // namespace tessaryn
