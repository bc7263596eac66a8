// Whether a statement's block stands in the text where and as its record says.
#pragma once

#include <string>

#include "check/ProofBytes.h"

namespace tessaryn::check {

// "" or what is wrong with the block of a line that lies in `depth` closed blocks. Looks at its
// number, its place, its line ends, its TABs and its annotation; the statement and a comment may
// read as they like. The lines ahead have been looked at.
std::string LayoutFault(const ProofBytes& proof, int line, int depth);

// The statement as it stands in the file.
std::string_view StatementText(const ProofBytes& proof, int line);

}  // namespace tessaryn::check
