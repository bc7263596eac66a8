// Asks which statements to print, and prints them.
#pragma once

#include <string>

#include "platform/Form.h"

namespace tessaryn {

struct PrintProofForm : Form {
    PrintProofForm();

    void Activated() override;

    CheckBox ChkAllStmts{*this, "ChkAllStmts", "All Statements"};
    Label Label1{*this, "Label1", "From Line Number:"};
    TextBox Text1{*this, "Text1"};
    Label Label2{*this, "Label2", "To Line Number:"};
    TextBox Text2{*this, "Text2"};
    Label StatusLine{*this, "StatusLine"};
    Button cmdContinue{*this, "cmdContinue", "Continue..."};
    Button cmdCancel{*this, "cmdCancel", "Cancel"};

  private:
    void ShowRange();
    void Continue();
    void Refuse(const std::string& message, const std::string& reason);

    int openedFrom_ = 0;  // the range it was opened with
    int openedTo_ = 0;
};

inline PrintProofForm PrintProof;

void PrintCommand();

}  // namespace tessaryn
