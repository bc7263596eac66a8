// The rules of the connectives.
#pragma once

#include <string>

#include "inference/Outcome.h"

namespace tessaryn {

// --- whole statements

// P and Q give P & Q.
Outcome Join(const Expression& first, const Expression& second);
// How many leading universal quantifiers with the same variables in the same order the two have.
int CommonQuantifiers(const Expression& first, const Expression& second);
// ALL(x):P and ALL(x):Q, with that many quantifiers in common, give ALL(x):[P & Q].
Outcome JoinUnderQuantifiers(const Expression& first, const Expression& second, int count);

// P & Q & R gives P, Q and R, in the order of the text. The conjuncts of a right operand stay
// together.
Outcome Split(const Expression& statement);

// P => Q and what is the same as P give Q. DetachFrom tells whether the first is an implication.
Outcome Detach(const Expression& implication, const Expression& antecedent);
Outcome DetachFrom(const Expression& implication);

// P | Q | ... and [P => C] & [Q => C] & ..., in the same order, give C. CasesFrom tells whether the
// first is a disjunction.
Outcome Cases(const Expression& disjunction, const Expression& implications);
Outcome CasesFrom(const Expression& disjunction);

// The same statement.
Outcome Copy(const Expression& statement);

// P and any Q give Q | P or P | Q, Q => P, and ~P => Q; any P gives P | ~P.
Outcome OrWithLeft(const Expression& statement, const Expression& other);
Outcome OrWithRight(const Expression& statement, const Expression& other);
Outcome ArbAnte(const Expression& statement, const Expression& other);
Outcome ArbCons(const Expression& statement, const Expression& other);
Outcome OrNot(const Expression& other);

// --- one sign anywhere in a statement, at token `sign` as clicked

// P => Q to ~[P & ~Q], and P & Q to ~[P => ~Q].
Outcome ImplyAnd(const Expression& statement, int sign);
// P => Q to ~P | Q, and P | Q to ~P => Q.
Outcome ImplyOr(const Expression& statement, int sign);
// P => Q to ~Q => ~P.
Outcome Contra(const Expression& statement, int sign);
// P & Q to ~[~P | ~Q], and P | Q to ~[~P & ~Q].
Outcome DeMorgan(const Expression& statement, int sign);
// P <=> Q to [P => Q] & [Q => P] and back, at the <=> or at the & between the two implications.
Outcome IffAnd(const Expression& statement, int sign);
// ~~P to P, at the first of the two signs.
Outcome RemDNeg(const Expression& statement, int sign);

// What a click must hit for each of these: "Contra needs =>". Ends the reason of a refusal.
inline constexpr const char* ImplyAndNeeds = "Imply-And needs => or &";
inline constexpr const char* ImplyOrNeeds = "Imply-Or needs => or |";
inline constexpr const char* ContraNeeds = "Contra needs =>";
inline constexpr const char* DeMorganNeeds = "DeMorgan needs & or |";
inline constexpr const char* IffAndNeeds = "Iff-And needs <=>, or the & of [P => Q] & [Q => P]";
inline constexpr const char* RemDNegNeeds = "Rem DNeg needs the first ~ of a double negative";

}  // namespace tessaryn
