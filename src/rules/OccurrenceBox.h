// The statement box of the dialogues in which the user picks occurrences of a term: it shows a
// statement with its occurrences marked, and occurrences in it are replaced one by one or all at
// once. What it holds is the expression in the making; it is read back ahead of each step.
#pragma once

#include <string>
#include <vector>

#include "expr/Expression.h"
#include "expr/Operands.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

inline constexpr Colour CandidateBlue = Rgb(0, 0, 255);  // with bold
inline constexpr Colour ReplacedByClick = Rgb(160, 0, 255);
inline constexpr Colour ReplacedByAll = Rgb(200, 0, 255);

// Shows the text of a statement in `box` and in its copy `saved`, the occurrences of the term
// marked, caret in front. A text that does not parse: beep, both stay empty.
void ShowOccurrences(const std::string& text, const NodeList& term, RichTextBox& box,
                     RichTextBox& saved);

// What the box holds now.
Expression ExpressionIn(RichTextBox& box);

// Puts a text in the place of each span; they ascend. Nothing is selected afterwards, the caret is
// in front.
void ReplaceSpans(RichTextBox& box, const std::vector<Span>& spans, const std::string& text,
                  Colour colour);

// Gives a surface the text and formats of another.
void CopyContent(RichTextBox& from, RichTextBox& to);

}  // namespace tessaryn
