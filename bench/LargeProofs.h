// Large proofs for measuring, made without the writer.
#pragma once

namespace tessaryn {

// Fills the empty proof with that many statements: premises, splits and joins of 20 to 70 bytes
// with free and bound variables, one closed block in ten, all visible. The last two lines are
// active.
void FillWithLargeProof(int count);

}  // namespace tessaryn
