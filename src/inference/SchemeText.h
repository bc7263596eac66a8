// The axiom of a scheme for one number.
#pragma once

#include <string>

#include "inference/AxiomTexts.h"

namespace tessaryn {

std::string SchemeText(const AxiomScheme& scheme, int n);

}  // namespace tessaryn
