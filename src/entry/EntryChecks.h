// The checks of an entered expression, and the way in which an entry is refused.
#pragma once

#include <string>
#include <vector>

namespace tessaryn {

// Why every box refuses an entry, ahead of its parse and right behind it: a "#", or a name that the
// comparison of expressions takes in a way of its own. "" if it does not.
std::string ForbiddenCharacter(const std::string& entry);  // "Invalid character '#'"
std::string ForbiddenName();                               // in TokenTable: "Invalid name 'SUM'"

// Is the expression in the tables a formula?
bool RootIsLogical();

// The free names of the expression in the tables, in table order.
std::vector<std::string> FreeNames();

// Is a name in FreeVars and not in FixedVars of a statement, so introduced by its premise block?
bool IsGreen(const std::string& name, int stmt);

// The same, or is it the name that the statement, an E Spec, brings in?
bool IsIntroducedOn(const std::string& name, int stmt);

// The first free name of the expression in the tables that is neither in `own` nor free in an
// active line; "" if there is none.
std::string FirstUnknownName(const std::vector<std::string>& own);

// Each of these gives "" or the message of the first failure.

// Axiom: no free name may have been introduced in the proof already.
std::string CheckAxiomNames();
// Premise, in insert mode: no later line may change who introduced a name.
std::string CheckPremiseNames();

}  // namespace tessaryn
