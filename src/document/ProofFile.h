// The proof file: "Tessaryn 1", the count, the caption, the statement records as they stand, the
// text.
//
// Integers and strings are as Bytes.h has them. The layout of a record is the order of the fields
// in WriteRecord; docs/file-format.md tells it byte by byte.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "document/Bytes.h"
#include "document/Document.h"

namespace tessaryn {

// No proof is written to a longer file, and no byte of a file behind that is read: ten times the
// size of the longest proof of ordinary statements, and far below what 32-bit indexes can tell.
inline constexpr std::uint64_t MaxProofFile = 1U << 26;

// The file's bytes for the document in memory.
std::string WriteProof();

// Reads a proof file. Nothing if it is damaged: bytes missing, or what StructureFault finds in what
// would be in memory. Bytes behind the text are not read. Strings that are no UTF-8 are converted
// from Windows-1252, and the indexes with them. What is shown is left as it was stored.
std::optional<Document> ReadProof(ByteReader& in);
std::optional<Document> ReadProof(std::string_view bytes);

// Writes the document to ProofFileName, with the hourglass up. On failure the old file is whole,
// OperationCancelled is set, and a message box has said so.
bool SaveProof();

// MaySave, SaveProof, and then the document counts as saved: recent files, title, ProofChanged.
// False, with all that as it was, if it was not saved.
bool SaveProofFile();

// Replaces the document by the content of a file, which becomes ProofFileName, and rebuilds the
// display. A name without ending finds the file that ends in ".proof". On failure, memory that is
// short included, the document, its name and the title stay, OperationCancelled is set, and
// StatusLine says so.
void ReadProofFile(const std::string& entered);

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
