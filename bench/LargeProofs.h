// Large proofs for measuring, made without the writer.
#pragma once

namespace tessaryn {

// Starts the program anew with a proof of that many statements in memory: premises, splits and
// joins of 20 to 70 bytes with free and bound variables, one closed block in ten, all visible. The
// last two lines are active.
void MakeLargeProof(int count);

}  // namespace tessaryn
