// The manual and the web site.
#pragma once

namespace tessaryn {

// Opens the manual; a message box tells if there is none. HelpCommand ends the prompt before.
void ShowManual();
void HelpCommand();
void WebSiteCommand();

inline constexpr const char* WebSite = "https://tessaryn.example/";

}  // namespace tessaryn
