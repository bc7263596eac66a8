#include "output/StartUp.h"

namespace tessaryn {

StartUpForm::StartUpForm() : Form("StartUp", "Tessaryn") {
    TakesAllInput = true;
    BuildDate.Caption = "Built on " __DATE__;
}

bool StartUpForm::KeyPressed(const KeyEvent&) {
    Hide();
    return true;
}

void StartUpForm::Clicked() {
    Hide();
}

}  // namespace tessaryn
