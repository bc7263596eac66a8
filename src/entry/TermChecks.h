// The checks of a term that is entered for U Spec or Reflex.
#pragma once

#include <string>

#include "expr/Expression.h"

namespace tessaryn {

// A term that has passed, with the line that it rests on.
struct EnteredTerm {
    std::string text;     // as entered; a single name without blanks and brackets around it
    bool isName = false;  // a single name, not a compound term
    int footing = 0;      // the active line that holds the name free, or that makes the compound
                          // term an element of something
};

// Checks the entry in NewStmtText, parsed into the tables: a term; with no name that is bound in
// `clicked`, the statement that it goes into (an empty table if there is none); already in use
// above the insertion point. Fills `term` and gives "", or the message of the first failure. Leaves
// the globals as they are.
std::string CheckTerm(const TokenList& clicked, EnteredTerm& term);

// Forgets which texts have parsed; that is kept for speed only.
void ResetTermChecks();

}  // namespace tessaryn
