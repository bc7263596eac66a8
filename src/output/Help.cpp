#include "output/Help.h"

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "platform/Platform.h"

namespace tessaryn {

void ShowManual(const std::string& page) {
    if (!ShowHelpFile(AppPath + "\\Tessaryn.chm", page)) {
        MsgBox({"Help file \"Tessaryn.chm\" not found", "SYSTEM ERROR"});
    }
}

void HelpCommand() {
    SetPrompt("");
    ShowManual();
}

void WebSiteCommand() {
    OpenWebSite(WebSite);
}

}  // namespace tessaryn
