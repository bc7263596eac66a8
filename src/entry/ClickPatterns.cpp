#include "entry/ClickPatterns.h"

#include "entry/ActiveStmts.h"
#include "entry/EntryChecks.h"
#include "entry/TestParser.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/PutStmt.h"

namespace tessaryn {
namespace {

// A text with the number of the first line in the place of %1.
std::string WithFirstLine(std::string text) {
    const std::size_t at = text.find("%1");
    if (at != std::string::npos) text.replace(at, 2, std::to_string(Arg1Pending));
    return text;
}

void TakeFirst(int line, const LinesClick& rule) {
    const Outcome fit = rule.first(InHand);
    if (!fit.Applies()) return BeepRefusal(line, fit);
    Arg1Pending = line;
    Second = InHand;
    FirstClick = false;
    SetPrompt(WithFirstLine(rule.secondPrompt));
}

void TakeSecond(int line, const LinesClick& rule) {
    const Outcome outcome = rule.infer(Second, InHand);
    if (!outcome.Applies()) return BeepRefusal(line, outcome);
    Arg2Pending = line;
    WriteOutcome(outcome, rule.after);
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
    if (WriteStatement()) EndRule();
    return "";
}

}  // namespace

bool TakeClickedLine(int& line, AfterParseError after, bool saysWhy) {
    GetActiveStmt(line, NewStmtText);
    if (line == 0) {
        BeepNoActiveStmt();
        return false;
    }
    Parse();
    if (ParseError.empty()) return true;
    saysWhy ? ReportParseError() : Beep(ParseError);
    if (after == AfterParseError::EndRule) RuleMode = 0;
    return false;
}

bool TakeClickedToken(int& line, int& token, const char* needs) {
    SelectToken(line, token);
    if (line == 0) {
        BeepNoActiveStmt();
        return false;
    }
    if (token == 0) {
        // A text that does not parse has been reported by now.
        if (ParseError.empty()) {
            BeepAtLine(line, std::string("was clicked beside its signs: ") + needs + ".");
        }
        return false;
    }
    Arg1Pending = line;
    Arg2Pending = 0;
    return true;
}

void BeepRefusal(int line, const Outcome& outcome) {
    BeepAtLine(line, WithFirstLine(outcome.refusal));
}

void WriteOutcome(const Outcome& outcome, AfterParseError after) {
    if (outcome.texts.size() == 1) {
        NewStmtText = outcome.texts[0];
        if (!ParseOrReport()) {
            if (after == AfterParseError::EndRule) RuleMode = 0;
            return;
        }
    }
    FinishRule(WriteStatements(outcome.texts));
}

void ClickLine(const LineClick& rule) {
    int line = 0;
    if (!TakeClickedLine(line, rule.after)) return;
    const Outcome outcome = rule.infer(InHand);
    if (!outcome.Applies()) return BeepRefusal(line, outcome);
    Arg1Pending = line;
    Arg2Pending = 0;
    FinishRule(WriteStatements(outcome.texts));
}

void ClickSign(const SignClick& rule) {
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, rule.needs)) return;
    const Outcome outcome = rule.infer(InHand, token);
    if (!outcome.Applies()) return BeepRefusal(line, outcome);
    WriteOutcome(outcome, rule.after);
}

void ClickLines(const LinesClick& rule) {
    int line = 0;
    if (!TakeClickedLine(line, rule.after, rule.saysWhyFirst || !FirstClick)) return;
    if (FirstClick) {
        TakeFirst(line, rule);
    } else {
        TakeSecond(line, rule);
    }
}

void AskForOperand(const std::string& caption,
                   Outcome (*infer)(const Expression&, const Expression&)) {
    SetPrompt("");
    AskForExpression({caption, [infer] { return WriteWithOperand(infer); }}, EndRule);
}

void ClickLineAndBox(const LineAndBoxClick& rule) {
    int line = 0;
    if (!TakeClickedLine(line, rule.after)) return;
    Arg1Pending = line;
    Arg2Pending = 0;
    Second = InHand;
    AskForOperand(WithFirstLine(rule.caption), rule.infer);
}

}  // namespace tessaryn
