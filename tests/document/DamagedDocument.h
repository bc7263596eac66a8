// Damage such as bytes changed at random seldom do: the file that would be written still opens more
// often than not.
#pragma once

#include "document/RandomWalk.h"

namespace tessaryn {

// Changes something in the open document, which has a statement.
void DamageDocument(const RandomNumber& random);

}  // namespace tessaryn
