// The main window as the user finds it: menus, buttons, and what its events do.
#pragma once

#include <string>

#include "platform/Controls.h"

namespace tessaryn {

// Gives the form Proof, as it was made, its menus, its buttons and its events.
void FillMainWindow();

// The next text size, as if chosen in the menu; nothing beyond the last.
void Zoom(bool larger);

// Open for a file that the user has named by other means than the program's own.
void OpenFromElsewhere(const std::string& path);

// What the window does once at its start, ahead of being shown by `then`. commandLine: "" or the
// path of a proof in quotation marks.
void LoadMainWindow(const std::string& commandLine, const EventHandler& then);

}  // namespace tessaryn
