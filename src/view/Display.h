// The proof display: builds the surface Proof.RTB from the document, and the small services that
// every surface with an expression shares.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

inline int StmtFontSize = 12;  // points, of statements
inline int RuleFontSize = 10;  // points, of annotations; always StmtFontSize - 2

inline constexpr const char* StatementFont = "Courier New";
inline constexpr const char* SymbolFont = "Symbol";      // "e" is the element sign
inline constexpr const char* TriangleFont = "Webdings";  // "4" points right, "5" up

inline constexpr Colour Black = 0;
inline constexpr Colour CommentBlue = Rgb(0, 0, 150);
inline constexpr Colour FaintGrey = Rgb(128, 128, 128);
inline constexpr Colour FixedRed = Rgb(200, 0, 0);
inline constexpr Colour FreeGreen = Rgb(0, 175, 0);

// Rebuilds the display. Nothing is selected afterwards; the caller places the caret. Only what
// changed is handed on, and a statement is lexed and coloured when its place is first looked at.
void ResetFonts();

// The statement whose block holds a place of the display, 1-based; 0 if none does. The line ends
// behind the annotation belong to no block.
int ShownStmtAt(int place);

// "", or how the display differs from one that is built from nothing. Changes nothing.
std::string CheckDisplay();

// Forgets what was shown: the surface is a new one.
void ResetDisplay();

// Lexes all stored text. A statement that can't be lexed, which only a damaged file can hold, is
// reported by this and by each ResetFonts from then on until a sound document replaces it.
void CheckStoredText();

// What a surface's selection holds now, to be had at any later time: the display's is lexed and
// coloured only then.
std::function<RichText()> LateSelection(const RichTextBox& surface);

// PlainText of the selection, without a look at the formats of the display.
std::string PlainSelection(const RichTextBox& surface);

// Turns each "@" into the element sign, over 1-based positions start to start + length - 1.
void ConvertAmpersand(RichTextBox& surface, int start, int length);

// The surface's plain text with "@" for each element sign. The surface is left alone.
std::string ConvertEpsilon(RichTextBox& surface);

// A hidden surface on which formatted text is normalised, and pages are built.
struct WorkAreaForm : Form {
    WorkAreaForm() : Form("WorkArea") {}
    RichTextBox RTB{*this, "RTB"};
};
inline WorkAreaForm WorkArea;

// Gives a surface an expression: one font, the given colour, element signs shown for "@".
void ShowExpression(RichTextBox& surface, std::string text, Colour colour);

// Makes the WorkArea surface's content such an expression, without TABs.
void ReformatWA(Colour colour);

}  // namespace tessaryn
