// The whole proof as a LaTeX document, whatever the display has folded away.
#pragma once

#include <string>

namespace tessaryn {

// The document, in UTF-8. It needs nothing but a plain LaTeX, and compiles whatever the proof
// holds.
std::string LaTeXDocument();

// Writes it to a file: "", or why it failed, as ReplaceFile has it.
std::string SaveLaTeX(const std::string& path);

}  // namespace tessaryn
