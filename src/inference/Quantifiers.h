// The rules of the quantifiers.
#pragma once

#include <string>
#include <vector>

#include "inference/Outcome.h"

namespace tessaryn {

// ALL(x):P or EXIST(x):P gives P with `term` for x; a compound term stands in round brackets. No
// inner quantifier binds the same name, so that every occurrence is meant. SpecifyFrom tells
// whether the statement begins with a quantifier over the whole of it.
Outcome Specify(const Expression& statement, const Expression& term);
Outcome SpecifyFrom(const Expression& statement);
// Is the variable of the leading quantifier free in what it quantifies?
bool BindsSomething(const Expression& statement);
// Does a quantifier inside the statement, its leading one left out, bind the name?
bool BindsInside(const Expression& statement, const std::string& name);

// ALL(x):P to ~EXIST(x):~P, and EXIST(x):P to ~ALL(x):~P, anywhere in a statement, at the word.
Outcome Quant(const Expression& statement, int sign);
inline constexpr const char* QuantNeeds = "Quant needs the word ALL or EXIST";

// From a statement in which occurrences of a term have been replaced by `variable`, that something
// exists of which it holds.
Outcome ExistGen(const std::string& replaced, const std::string& variable);

// The statement with other names for the variables of its leading universal quantifiers.
// `newNames` are as many. The refusal is `alreadyUsed` if it would not be the same statement.
Outcome Rename(const Expression& statement, const std::vector<std::string>& oldNames,
               const std::vector<std::string>& newNames, const char* alreadyUsed);

// The statement with its leading universal quantifiers in another order; `names` has their
// variables.
Outcome Reorder(const Expression& statement, const std::vector<std::string>& names);

// "ALL(x):ALL(y):"
std::string UniversalQuantifiers(const std::vector<std::string>& names);

// Rename and Reorder: does the statement begin with ALL, or with more than one?
Outcome RenameFrom(const Expression& statement);
Outcome ReorderFrom(const Expression& statement);

}  // namespace tessaryn
