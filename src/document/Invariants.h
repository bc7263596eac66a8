// The checks of everything that holds of the document after each command.
#pragma once

#include <string>

#include "document/Document.h"

namespace tessaryn {

// "" if records and text fit together as every command needs it: references, rule numbers, the
// order of the indexes, whole characters between them. Otherwise one sentence on the first thing
// that does not. A file whose proof has such a fault is refused.
std::string StructureFault(const Document& document);

// The same for the open document and what has been worked out beside it, and, if it has agreed with
// itself so far, for all that it says twice: numbers, annotations, indentation, canonical texts,
// name lists. Looks at every statement; meant for tests and debug builds.
std::string CheckDocument();

// Forgets which texts were found good; that is kept for speed only.
void ResetDocumentChecks();

}  // namespace tessaryn
