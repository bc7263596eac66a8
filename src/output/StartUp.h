// The form that greets at the start. Any key or click closes it.
#pragma once

#include "platform/Form.h"

namespace tessaryn {

struct StartUpForm : Form {
    StartUpForm();

    bool KeyPressed(const KeyEvent& key) override;
    void Clicked() override;

    Label ProgramName{*this, "ProgramName", "Tessaryn " TESSARYN_VERSION};
    Label BuildDate{*this, "BuildDate"};
};

inline StartUpForm StartUp;

}  // namespace tessaryn
