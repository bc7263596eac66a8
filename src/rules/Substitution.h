// The dialogue of Substitute: replaces occurrences of one side of an equation in a statement by the
// other side, one by one or all at once, and writes the result.
//
// The rule sets the values below, Arg1Pending (the equation) and Arg2Pending (the statement) and
// shows the form modally. When it returns, the statement has been written or the user has
// cancelled.
#pragma once

#include <string>

#include "expr/Expression.h"
#include "rules/OccurrenceForm.h"

namespace tessaryn {

inline std::string SubstEquation;  // the equation
inline std::string SubstSource;    // its side that is put in, in round brackets where it needs them
inline std::string SubstTarget;    // its other side, which is replaced
inline NodeList SubstTargetTable(1);  // the parse of SubstTarget

struct SubstitutionForm : OccurrenceForm {
    SubstitutionForm() : OccurrenceForm("Substitution", "Statement Text:") {}

    void Activated() override;
    void Close() override;

  private:
    void StartPicking();
    void Pick() override;
    void SelectAll() override;
    void Reset() override;
    void Continue() override;
};

inline SubstitutionForm Substitution;

}  // namespace tessaryn
