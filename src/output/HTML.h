// The whole proof as one page for a browser, whatever the display has folded away.
#pragma once

#include <string>

namespace tessaryn {

// The page, in ASCII.
std::string HTMLPage();

// Writes the page to a file; a note tells of a caption that may be taken for markup. "", or why it
// failed, as ReplaceFile has it.
std::string SaveHTML(const std::string& path);

void HTMLCommand();

}  // namespace tessaryn
