// The whole proof as one page for a browser, whatever the display has folded away.
#pragma once

#include <string>

namespace tessaryn {

// Writes the text as HTML has it: "<", ">" and "@"; a conjunction's "&" stays.
std::string InsertGifs(const std::string& text);

// The page, in ASCII.
std::string HTMLPage();

// Writes the page to a file; a note tells of a caption that may be taken for markup. False if that
// failed.
bool SaveHTML(const std::string& path);

void HTMLCommand();

}  // namespace tessaryn
