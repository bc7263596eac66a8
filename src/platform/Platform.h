// The outside world as the logic sees it, besides what asks (Questions.h). Each function has one
// body for the desktop (src/desktop/) and one without a display (src/cli/); the logic never asks
// which it runs on.
#pragma once

#include <functional>
#include <string>

#include "platform/Form.h"
#include "platform/Questions.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

// Shows a form beside the one that opened it, and returns at once.
void ShowModeless(Form& form);

// Brings what the logic has set in a form to the screen at once, ahead of a longer piece of work.
void RefreshNow(Form& form);

// Ends the program once the present event is over. Returns.
void EndProgram();

// --- messages

// The system's beep for a refusal. reason: one sentence that tells a person what was clicked and
// what the command needs instead.
void Beep(const std::string& reason);

// Tells a person what they should know of a command that was done: one sentence, without a beep.
void Tell(const std::string& note);

// A proof file has been opened and is in the display: whoever wants may look at it in his own time.
void ProofOpened();

// --- files

// Replaces a file (ReplaceFile) beside the user's work: `bytes` is called and the file written
// somewhere else, perhaps on another thread; then `then` is run here, as an event, with "" or the
// reason of a failure. Both are destroyed here.
void WriteBehind(const std::string& path, std::function<std::string()> bytes,
                 std::function<void(const std::string& fault)> then);

// --- clipboard

void SetClipboard(const LateClip& content);  // in place of what was there, in all formats
Clip ClipboardContent();

// --- printing; lengths are in twips, 1440 to the inch

struct PrinterPage {
    int Width = 0;
    int Height = 0;
    int OffsetX = 0;  // from the edges of the paper to where the printer's own coordinates begin
    int OffsetY = 0;
};

struct PageRect {  // in the printer's own coordinates
    int Left = 0;
    int Top = 0;
    int Right = 0;
    int Bottom = 0;
};

enum class PrinterState { Ready, Cancelled, Failed };

// Readies the system's default printer or, where there is none, a PDF file that the user names.
void ReadyPrinter(std::function<void(PrinterState, const PrinterPage&)> then);
// Lays a surface out in lines of that width. The surface must stay as it is until ReleasePrinter.
bool LayOutForPrinter(RichTextBox& surface, int width);
// Begins the first page.
bool StartPrinting();
// Prints what fits into the rectangle, from a position on. Gives the first position that did not.
int PrintRange(int from, const PageRect& rect);
bool NextPage();
// All pages are to be with the printer, or in the file. "", or a sentence that tells why they are
// not; an old file is then as it was.
std::string EndPrinting();
void CancelPrinting();
void ReleasePrinter();

// --- pointer and help

// True while the pointer is to the right of the box's right edge.
bool PointerBeyondRightEdge(const Control& box);

// Pops up a menu title's items at the pointer.
void PopupMenu(MenuItem& menu);

// Opens the manual under the name of its help file, at a page ("rule-join") or, with "", as it was
// left. False if the viewer gives no window.
bool ShowHelpFile(const std::string& path, const std::string& page);
void OpenWebSite(const std::string& address);

}  // namespace tessaryn
