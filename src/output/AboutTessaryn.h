// Tells the name of the program.
#pragma once

#include "platform/Form.h"

namespace tessaryn {

struct AboutTessarynForm : Form {
    AboutTessarynForm();

    Label ProgramName{*this, "ProgramName", "Tessaryn " TESSARYN_VERSION};
    Label Purpose{*this, "Purpose", "An interactive editor for formal proofs"};
    Button cmdOK{*this, "cmdOK", "OK"};
};

inline AboutTessarynForm AboutTessaryn;

void AboutCommand();

}  // namespace tessaryn
