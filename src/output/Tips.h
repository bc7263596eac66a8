// A tip at the start of the program, picked at random each time.
#pragma once

#include <string>

#include "platform/Form.h"

namespace tessaryn {

struct TipsForm : Form {
    TipsForm();

    void Activated() override;
    void KeepWish();  // whether tips are wanted

    Label TipText{*this, "TipText"};
    CheckBox Check1{*this, "Check1", "Show tips on start-up"};
    Button cmdClose{*this, "cmdClose", "Close"};
};

inline TipsForm Tips;

// The tip for a random number of at least 0 and below 1.
const std::string& TipFor(double random);

}  // namespace tessaryn
