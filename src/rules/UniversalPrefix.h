// The leading universal quantifiers of a clicked statement, which Rename and Reorder edit.
#pragma once

#include <string>

namespace tessaryn {

// The click: the statement is kept as the second expression, the variables of its leading universal
// quantifiers in ConclusionUVars. False after a beep; then the rule is over if the text does not
// parse, and pending otherwise. `needs` ends the reason: "Rename needs ALL".
bool TakeUniversalStatement(int& line, const char* needs);

// Shows MyInputBox with the entry `preset` ready to be edited, and its caption ending in it.
void EditPrefix(const std::string& captionStart, int line, const std::string& prompt,
                const std::string& preset);

// The end of Continue: checks the text and writes it; hides the box when all is well.
void WriteEdited(const std::string& text);

}  // namespace tessaryn
