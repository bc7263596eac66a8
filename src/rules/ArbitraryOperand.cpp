#include "rules/ArbitraryOperand.h"

#include "entry/ClickPatterns.h"
#include "entry/EntryChecks.h"
#include "entry/TestParser.h"
#include "expr/Parse.h"
#include "inference/Connectives.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// The click: keeps the statement as the second expression and asks for the other operand.
void AskForOperand(const std::string& captionStart, AfterParseError after,
                   std::string (*accept)()) {
    int line = 0;
    if (!TakeClickedLine(line, after)) return;
    Arg1Pending = line;
    Arg2Pending = 0;
    Second = InHand;
    SetPrompt("");
    AskForExpression(
        {captionStart + std::to_string(line) + ":  Enter a logical expression", accept}, EndRule);
}

// A logical expression without new free variables: "" or the message.
std::string CheckOperand() {
    if (!RootIsLogical()) return "Expecting a logical expression";
    const std::string name = FirstUnknownName({});
    return name.empty() ? "" : "Variable '" + name + "' not found in any active statement";
}

// Writes what the rule makes of the clicked statement and the entry, or gives the message.
std::string WriteWithOperand(Outcome (*infer)(const Expression&, const Expression&)) {
    if (std::string fault = CheckOperand(); !fault.empty()) return fault;
    NewStmtText = infer(Second, InHand).texts[0];
    Parse();
    if (!ParseError.empty()) return "Incompatible antecedent and consequent";
    if (WriteStatement()) RuleMode = 0;
    return "";
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
                  AfterParseError::EndRule, AcceptArbOr);
}

void ArbAnte() {
    AskForOperand("Arbitrary Antecedent Rule, Line ", AfterParseError::StayPending, AcceptArbAnte);
}

void ArbCons() {
    AskForOperand("Arbitrary Consequent Rule, Line ", AfterParseError::StayPending, AcceptArbCons);
}

void OrNot() {
    RuleMode = Rule::OrNot;
    SetPrompt("");
    Arg1Pending = Arg2Pending = 0;
    AskForExpression({"Arbitrary OR-NOT Rule: Enter a logical expression", AcceptOrNot}, EndRule);
}

}  // namespace tessaryn
