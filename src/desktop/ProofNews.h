// Tells assistive tools of what has changed in the proof display. Costs nothing while there are
// none.
#pragma once

#include "text/TextBlocks.h"

namespace tessaryn {

class ProofDisplay;

class ProofNews {
  public:
    // before: the units of the text ahead of the change, as far as they had been counted.
    void ContentChanged(ProofDisplay& display, const SurfaceChange& change, int before);
    // Caret or selection may have moved.
    void CaretMoved(ProofDisplay& display);
    // A command has changed the text or moved the caret: what stands there now is said.
    void CommandDone(ProofDisplay& display);

  private:
    int anchor_ = 0;  // units, as last told
    int caret_ = 0;
};

}  // namespace tessaryn
