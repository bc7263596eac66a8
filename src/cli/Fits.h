// Which rules fit the lines of a proof, and what they would write.
#pragma once

#include <iosfwd>

namespace tessaryn {

// Prints, for each active line of the open proof, each rule that would take it without asking for
// an entry, as one JSON object a line:
//
//   {"rule":"Contra","line":3,"sign":"=>","place":1,"texts":["~Q => ~P"]}
//
// "sign" and "place" stand where a sign is clicked: the place-th token of the line that is written
// so. "second" is the further line of a rule that takes two. Detach is tried on all pairs.
// onlyLine: 0 for all lines.
void PrintFits(int onlyLine, std::ostream& out);

}  // namespace tessaryn
