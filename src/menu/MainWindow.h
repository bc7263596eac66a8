// The main window as the user finds it: menus, buttons, and what its events do.
#pragma once

#include <string>

namespace tessaryn {

// Gives the form Proof, as it was made, its menus, its buttons and its events.
void FillMainWindow();

// What the window does once at its start. commandLine: "" or the path of a proof in quotation
// marks.
void LoadMainWindow(const std::string& commandLine);

}  // namespace tessaryn
