#include "output/Help.h"

#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "platform/Platform.h"

namespace tessaryn {

void ShowManual() {
    if (!ShowHelpFile(AppPath + "\\Tessaryn.chm")) {
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
