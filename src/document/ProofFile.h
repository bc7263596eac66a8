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

// The file's bytes for a document.
std::string WriteProof(const Document& doc = Doc);

// Reads a proof file. Nothing if it is damaged: bytes missing, or what StructureFault finds in what
// would be in memory. Bytes behind the text are not read. Strings that are no UTF-8 are converted
// from Windows-1252, and the indexes with them. What is shown is left as it was stored.
std::optional<Document> ReadProof(ByteReader& in);
std::optional<Document> ReadProof(std::string_view bytes);

}  // namespace tessaryn
