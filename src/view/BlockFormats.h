// The formats of the display's blocks: of each statement, and of the introduction. fontSize: that
// of statements, in points; annotations are two points smaller.
#pragma once

#include <vector>

#include "document/Document.h"
#include "text/RichText.h"

namespace tessaryn {

// Does a triangle stand ahead of its annotation? A Conclusion without one comes from a damaged
// file.
bool HasTriangle(const Statement& stmt, const Document& document = Doc);

// Runs relative to the block's start and covering it. A text that can't be lexed has one format.
std::vector<FormatRun> StatementBlockRuns(int number, const Document& document, int fontSize);
std::vector<FormatRun> IntroductionRuns(const Document& document, int fontSize);

}  // namespace tessaryn
