// Arb Or, Arb Ante, Arb Cons and Or Not: an expression of the user's own choice, whose free
// variables are in use, becomes an operand of the new statement. It is asked for in TestParser.
#pragma once

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

}  // namespace tessaryn
