#pragma once

namespace tessaryn {

// Puts the whole program into its starting state: globals, document and forms. Called once at start
// and first in each test.
void StartProgram();

}  // namespace tessaryn
