// A proof as a page for a browser that folds and unfolds blocks, tells the checker's verdict and,
// of each line, what it rests on. One file that asks nothing of any network.
#pragma once

#include <string>

namespace tessaryn {

// The page of the open proof, folded as that is. Nothing that the proof holds is markup in it.
std::string FoldPage();

// Writes it to a file: "", or why it failed, as ReplaceFile has it.
std::string SaveFoldPage(const std::string& path);

}  // namespace tessaryn
