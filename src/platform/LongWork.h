// Work that may take long, done in pieces.
#pragma once

#include <functional>
#include <string>

namespace tessaryn {

struct LongWork {
    std::string name;                      // for the user, as "Printing..."
    std::function<double()> piece;         // does some of it; the share that is done, 1 at the end
    std::function<void(bool whole)> then;  // not whole: the user has cancelled
};

// Does it at once. In the window, what takes more than a moment goes on in later events, behind a
// box that shows how far it is and lets the user cancel. One body in each front end.
void DoInPieces(const LongWork& work);

}  // namespace tessaryn
