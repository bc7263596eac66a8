// A range of statements on paper: a copy of the proof on the WorkArea surface, in black, in sizes
// of its own and without indentation, printed page by page.
#pragma once

#include <functional>
#include <string>

#include "platform/RichTextBox.h"

namespace tessaryn {

inline constexpr int Inch = 1440;  // twips

// Breaks lines at the first blank at or behind that column; no line end is moved.
void InsertBreaks(std::string& text, int width);
// Puts a TAB behind each line end.
void InsertTabs(std::string& text);

// Builds the copy of statements first to last on WorkArea.
void BuildPrintCopy(int first, int last);

// The name of what is printed: the caption, else the name of the proof's file without its ending.
std::string PrintTitle();

enum class PrintResult { Done, Cancelled, Failed };

inline std::string PrintFault;  // why the last print failed, as a sentence for the user

// Readies the printer, for which the user may have to name a file, and lays the surface out for it.
// Margins are in twips. The surface must stay until `then` has been told whether it went well, and
// the width and height that the margins leave of a page.
void WYSIWYG_RTF(RichTextBox& surface, int leftMargin, int rightMargin, int topMargin,
                 int bottomMargin, std::function<void(PrintResult, int width, int height)> then);
// Prints what has been laid out, between the same margins. The user may cancel while that takes
// long; the surface must stay until `then` has been told how it ended.
void PrintRTF(RichTextBox& surface, int leftMargin, int topMargin, int rightMargin,
              int bottomMargin, std::function<void(PrintResult)> then);

// Forgets the printer's page.
void ResetPrinting();

// The copy of statements first to last, printed at margins of an inch.
void PrintStatements(int first, int last, std::function<void(PrintResult)> then);

}  // namespace tessaryn
