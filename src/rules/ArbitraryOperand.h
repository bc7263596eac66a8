// Arb Or, Arb Ante, Arb Cons and Or Not: an expression of the user's own choice, whose free
// variables are in use, becomes an operand of the new statement. It is asked for in TestParser.
#pragma once

#include <string>

namespace tessaryn {

// One click on any active statement, then the box.
void ArbOr();
void ArbAnte();
void ArbCons();
// No click.
void OrNot();

// Make Arb Or pending for one side.
void ArbOrLeftCommand();
void ArbOrRightCommand();

// What `Continue` of TestParser does with an entry that parses: checks it and writes the statement.
// Gives "" or the message of the refusal.
std::string AcceptArbOr();
std::string AcceptArbAnte();
std::string AcceptArbCons();
std::string AcceptOrNot();

}  // namespace tessaryn
