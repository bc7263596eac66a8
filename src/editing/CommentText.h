// The introduction and the comments in the text of the proof. The lines of a comment bear the
// indentation of its statement, which nobody sees who edits it.
#pragma once

#include <string>

namespace tessaryn {

std::string Introduction();
// The comment of a statement without its indentation; "" if there is none.
std::string CommentOf(int line);

// Each of these replaces what is there, "" for none, after BackUpUndo; nothing in the place of
// nothing is no change. The view is laid out anew but not drawn.
void SetIntroduction(const std::string& text);
void SetComment(int line, const std::string& text);

}  // namespace tessaryn
