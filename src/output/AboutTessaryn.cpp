#include "output/AboutTessaryn.h"

#include "platform/Platform.h"

namespace tessaryn {

AboutTessarynForm::AboutTessarynForm() : Form("AboutTessaryn", "About Tessaryn") {
    cmdOK.Click = [this] { Hide(); };
    DefaultButton = &cmdOK;
}

void AboutCommand() {
    ShowModal(AboutTessaryn);
}

}  // namespace tessaryn
