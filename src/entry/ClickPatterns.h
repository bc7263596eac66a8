// The few ways in which most rules are clicked. A rule that fits one is a row of RuleRows.cpp.
#pragma once

#include <string>

#include "inference/Outcome.h"

namespace tessaryn {

// What follows where the text of a statement, or what a rule makes of it, does not parse. The first
// can only happen to a damaged file.
enum class AfterParseError { StayPending, EndRule };

// One click, on a line.
struct LineClick {
    Outcome (*infer)(const Expression& statement);
    AfterParseError after = AfterParseError::EndRule;
};
void ClickLine(const LineClick& rule);

// One click, on a sign in a line. `needs` ends the reason of a click beside all signs.
struct SignClick {
    Outcome (*infer)(const Expression& statement, int sign);
    const char* needs;
    AfterParseError after = AfterParseError::EndRule;
};
void ClickSign(const SignClick& rule);

// Two clicks, on two lines in order; a miss beeps and waits for another click.
struct LinesClick {
    Outcome (*first)(const Expression& first);  // does the first line fit?
    Outcome (*infer)(const Expression& first, const Expression& second);
    const char* secondPrompt;  // %1 stands for the first line
    AfterParseError after = AfterParseError::EndRule;
    bool saysWhyFirst = true;  // in StatusLine, where the first line does not parse
};
void ClickLines(const LinesClick& rule);

// One click, on a line, and an entry in TestParser: a formula whose free names are all in use.
struct LineAndBoxClick {
    Outcome (*infer)(const Expression& clicked, const Expression& entered);
    const char* caption;  // of the box; %1 stands for the line
    AfterParseError after = AfterParseError::EndRule;
};
void ClickLineAndBox(const LineAndBoxClick& rule);

// --- the steps, for rules with a conversation of their own

// Finds the statement of a click and parses it: InHand is the statement. False after a beep.
bool TakeClickedLine(int& line, AfterParseError after, bool saysWhy = true);

// The same with the token of the click; Arg1Pending is the line, Arg2Pending 0.
bool TakeClickedToken(int& line, int& token, const char* needs);

// Asks for the formula of a LineAndBoxClick and writes what the rule makes of Second and it.
void AskForOperand(const std::string& caption,
                   Outcome (*infer)(const Expression& clicked, const Expression& entered));

// The beep for a clicked line that a rule can't use.
void BeepRefusal(int line, const Outcome& outcome);

// Ends the rule with the statements of an inference.
void WriteOutcome(const Outcome& outcome, AfterParseError after = AfterParseError::EndRule);

}  // namespace tessaryn
