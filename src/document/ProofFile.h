// The proof file: "Tessaryn 1", the count, the caption, the statement records as they stand, the
// text.
//
// Integers and strings are as Bytes.h has them. The layout of a record is the order of the fields
// in WriteRecord; docs/file-format.md tells it byte by byte.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/Document.h"

namespace tessaryn {

// A document apart from the globals.
struct StoredProof {
    std::string caption;
    std::vector<Statement> table;  // element 0 empty
    std::string text;
};

// The file's bytes for the document in memory.
std::string WriteProof();

// Reads the bytes of a proof file. Nothing if it is damaged: bytes missing, an index outside the
// text or out of order, text that belongs to no block, a reference that cannot be, a rule without a
// name. Bytes behind the text are not read. Strings that are no UTF-8 are converted from
// Windows-1252, and the indexes with them.
std::optional<StoredProof> ReadProof(std::string_view bytes);

// Writes the document to ProofFileName, with the hourglass up. On failure the old file is whole,
// OperationCancelled is set, and a message box has said so.
bool SaveProof();

// SaveProof, and then the document counts as saved: recent files, title, ProofChanged. False, with
// all that as it was, if it could not be saved.
bool SaveProofFile();

// Replaces the document by the content of ProofFileName and rebuilds the display. On failure the
// document stays, OperationCancelled is set, and StatusLine says so. ProofFileName is then the name
// given as `previousName`, that of the proof that stayed.
void ReadProofFile(const std::string& previousName);

// The title for the open proof.
std::string ProofTitle();

// Commands of the File menu.
void OpenCommand();
void SaveCommand();
void SaveAsCommand();

// The filter of the file dialogues.
inline constexpr const char* ProofFilter = "Proofs (*.proof)|*.proof";

// The name with everything behind its last "." replaced. A name without one gets "." and the
// extension.
std::string WithExtension(const std::string& name, const std::string& extension);
std::string WithProofExtension(const std::string& name);

}  // namespace tessaryn
