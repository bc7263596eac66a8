// What Arb Or, Arb Ante, Arb Cons and Or Not share: an expression of the user's own choice becomes
// an operand of the new statement.
#pragma once

#include <string>

namespace tessaryn {

// The click on a statement: keeps it as the second expression and asks for the other operand, with
// the dialogue's caption up to the line number. False if the statement's text does not parse; a
// miss beeps and leaves the rule pending.
bool AskForOperand(const std::string& captionStart);

// The entered operand in the tables, checked: a logical expression without new free variables. ""
// or the message.
std::string CheckOperand();

// Writes the statement, or gives the message.
std::string WriteWithOperand(const std::string& text);

}  // namespace tessaryn
