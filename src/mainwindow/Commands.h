// Commands of the main window that belong to no rule: New, Exit, help, the clipboard.
#pragma once

namespace tessaryn {

// Empties the document, by way of the save question.
void NewCommand();

// Ends the program, by way of the save question. OperationCancelled tells that it goes on.
void ExitCommand();

// Opens the manual; a message box tells if there is none. HelpCommand ends the prompt before.
void ShowManual();
void HelpCommand();
void WebSiteCommand();

void CopySelection();
void ToggleRichTextMode();

inline constexpr const char* WebSite = "https://tessaryn.example/";

}  // namespace tessaryn
