#include "rules/ArbitraryOperand.h"

#include "expr/Parse.h"
#include "inference/Connectives.h"
#include "mainwindow/EntryChecks.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "mainwindow/TestParser.h"
#include "rules/ClickPatterns.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// The click: keeps the statement as the second expression and asks for the other operand.
void AskForOperand(const std::string& captionStart, AfterParseError after) {
    int line = 0;
    if (!TakeClickedLine(line, after)) return;
    Arg1Pending = line;
    Arg2Pending = 0;
    Second = InHand;
    SetPrompt("");
    TestParser.Caption = captionStart + std::to_string(line) + ":  Enter a logical expression";
    ShowModal(TestParser);
    RuleMode = 0;
}

// A logical expression without new free variables: "" or the message.
std::string CheckOperand() {
    if (!RootIsLogical()) return "Expecting a logical expression";
    const std::string name = FirstUnknownName({});
    return name.empty() ? "" : "Variable '" + name + "' not found in any active statement";
}

// Writes what the rule makes of the clicked statement and the entry, or gives the message.
std::string WriteWithOperand(Outcome (*infer)(const Expression&, const Expression&)) {
    if (const std::string fault = CheckOperand(); !fault.empty()) return fault;
    NewStmtText = infer(Second, InHand).texts[0];
    Parse();
    if (!ParseError.empty()) return "Incompatible antecedent and consequent";
    if (WriteStatement()) RuleMode = 0;
    return "";
}

}  // namespace

void ArbOrLeftCommand() {
    ArbOrLeft = true;
    AwaitClick(Rule::ArbOr, "Arb OR (Left):  Click any active statement");
}

void ArbOrRightCommand() {
    ArbOrLeft = false;
    AwaitClick(Rule::ArbOr, "Arb OR (Right):  Click any active statement");
}

void ArbOr() {
    const char* side = ArbOrLeft ? "Left" : "Right";
    AskForOperand("Arbitrary OR (Insert " + std::string(side) + ") Rule, Line ",
                  AfterParseError::EndRule);
}

void ArbAnte() {
    AskForOperand("Arbitrary Antecedent Rule, Line ", AfterParseError::StayPending);
}

void ArbCons() {
    AskForOperand("Arbitrary Consequent Rule, Line ", AfterParseError::StayPending);
}

void OrNot() {
    RuleMode = Rule::OrNot;
    SetPrompt("");
    TestParser.Caption = "Arbitrary OR-NOT Rule: Enter a logical expression";
    Arg1Pending = Arg2Pending = 0;
    ShowModal(TestParser);
    RuleMode = 0;
}

std::string AcceptArbOr() {
    return WriteWithOperand(ArbOrLeft ? OrWithLeft : OrWithRight);
}

std::string AcceptArbAnte() {
    return WriteWithOperand(ArbAnte);
}

std::string AcceptArbCons() {
    return WriteWithOperand(ArbCons);
}

std::string AcceptOrNot() {
    return WriteWithOperand(
        [](const Expression&, const Expression& other) { return OrNot(other); });
}

}  // namespace tessaryn
