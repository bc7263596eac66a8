// The menu bar and the tool buttons of the main window.
#pragma once

namespace tessaryn {

void BuildMenus();
void BuildButtons();

}  // namespace tessaryn
