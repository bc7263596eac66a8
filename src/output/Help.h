// The manual and the web site.
#pragma once

#include <string>

namespace tessaryn {

// Opens the manual at a page, as "rule-join", or as it was left; a message box tells if there is
// none. HelpCommand ends the prompt before.
void ShowManual(const std::string& page = "");
void HelpCommand();
void WebSiteCommand();

inline constexpr const char* WebSite = "https://tessaryn.example/";

}  // namespace tessaryn
