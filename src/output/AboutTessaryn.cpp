#include "output/AboutTessaryn.h"

#include "platform/Platform.h"

namespace tessaryn {

AboutTessarynForm::AboutTessarynForm() : Form("AboutTessaryn", "About Tessaryn") {
    cmdOK.Click = [this] { Hide(); };
    DefaultButton = &cmdOK;
}

bool AboutTessarynForm::KeyPressed(const KeyEvent& key) {
    if (key.key != Key::Esc) return false;
    Hide();
    return true;
}

void AboutCommand() {
    ShowModal(AboutTessaryn);
}

}  // namespace tessaryn
