// The check of everything that holds of the document after each command.
#pragma once

#include <string>

namespace tessaryn {

// "" if the records, the text and the document values agree; otherwise one sentence on the first
// thing that does not. Looks at every statement; meant for tests and debug builds.
std::string CheckDocument();

}  // namespace tessaryn
