// New, Open, Save, Save As and Exit: the proof file and the window around it.
#pragma once

#include <functional>
#include <string>

#include "document/Document.h"

namespace tessaryn {

// Writes the document to ProofFileName, with the hourglass up. On failure the old file is whole,
// OperationCancelled is set, and a message box has said so.
bool SaveProof();

// SaveProof under a name, unless another program has changed that file and the user wants to keep
// it. Then the document counts as saved: ProofFileName, recent files, title, ProofChanged; if it
// was not saved, all that is as it was. `then` is told which.
void SaveProofFile(std::string name, std::function<void(bool saved)> then);

// Makes a stored document the open one, in the display as well. If that fails, what was open is
// open again.
void TakeOver(Document& proof);

// Replaces the document by the content of a file, which becomes ProofFileName, and rebuilds the
// display. A name without ending finds the file that ends in ".proof". On failure, memory that is
// short included, the document, its name and the title stay, OperationCancelled is set, and
// StatusLine says so.
void ReadProofFile(const std::string& entered);

// Commands of the File menu. New, Open and Exit go by way of the save question.
void NewCommand();
void OpenCommand();
void OpenProof(const std::string& path);  // Open, with the file already named
inline constexpr const char* OpenFailed = "Open: Unable to open proof file";
void SaveCommand();
void SaveAsCommand();

// Ends the program. OperationCancelled tells that it goes on.
void ExitCommand();

// The filter of the file dialogues.
inline constexpr const char* ProofFilter = "Proofs (*.proof)|*.proof";

// The name with everything behind its last "." replaced. A name without one gets "." and the
// extension.
std::string WithExtension(const std::string& name, const std::string& extension);
std::string WithProofExtension(const std::string& name);

}  // namespace tessaryn
