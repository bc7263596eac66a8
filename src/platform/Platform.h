// The outside world as the logic sees it. Each function has one body for the desktop (src/desktop/)
// and one without a display (src/cli/); the logic never asks which it runs on.
#pragma once

#include <string>
#include <vector>

#include "platform/Form.h"
#include "platform/RichTextBox.h"

namespace tessaryn {

// Shows a form, runs its Activated, and returns when the form has been hidden.
void ShowModal(Form& form);

// Shows a form beside the one that opened it, and returns at once.
void ShowModeless(Form& form);

// Brings what the logic has set in a form to the screen at once, ahead of a longer piece of work.
void RefreshNow(Form& form);

// Ends the program once the present event is over. Returns.
void EndProgram();

// Thrown through an event when the program ends while a modal form is still up. No handler may
// swallow it.
struct ProgramEnded {};

// --- messages

// The system's beep for a refusal. reason: one sentence that tells a person what was clicked and
// what the command needs instead.
void Beep(const std::string& reason);

// Tells a person what they should know of a command that was done: one sentence, without a beep.
void Tell(const std::string& note);

enum class Answer { OK, Yes, No, Cancel };
enum class Buttons { OK, YesNo, YesNoCancel };

// A modal message box. Closing it counts as Cancel, or as No where there is no such button.
Answer MsgBox(const std::string& text, const std::string& title, Buttons buttons = Buttons::OK,
              Answer defaultAnswer = Answer::OK);

// --- file dialogues

struct CommonDialog {
    std::string FileName;  // in: the name offered; out: the full path chosen
    std::string Filter;    // "Proofs (*.proof)|*.proof"
    std::string InitDir;   // "" for the system's choice
    bool OverwritePrompt = false;
    bool FileMustExist = false;  // a name without ending may stand for one with the filter's
    std::string Title{};         // of its window; "" for what is usual
};

// Each returns false, with FileName as it was, when the user cancels.
bool ShowOpen(CommonDialog& dialog);
bool ShowSave(CommonDialog& dialog);

// --- clipboard

void SetClipboard(const Clip& content);  // in place of what was there, in all formats
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
PrinterState ReadyPrinter(PrinterPage& page);
// Lays a surface out in lines of that width. The surface must stay as it is until ReleasePrinter.
bool LayOutForPrinter(RichTextBox& surface, int width);
// Begins the first page.
bool StartPrinting();
// Prints what fits into the rectangle, from a position on. Gives the first position that did not.
int PrintRange(int from, const PageRect& rect);
bool NextPage();
bool EndPrinting();  // all pages are with the printer
void CancelPrinting();
void ReleasePrinter();

// --- pointer and help

// True while the pointer is to the right of the box's right edge.
bool PointerBeyondRightEdge(const Control& box);

// Pops up a menu title's items at the pointer.
void PopupMenu(MenuItem& menu);

// Opens the manual under the name of its help file. False if the viewer gives no window.
bool ShowHelpFile(const std::string& path);
void OpenWebSite(const std::string& address);

}  // namespace tessaryn
