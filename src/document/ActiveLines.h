// Which lines of a proof are in force at a place of it.
//
// A line is active ahead of a limit if it stands above the limit and in no block that is closed
// there: only such lines can be used by a rule. Whether a line is shown plays no part.
#pragma once

#include <vector>

#include "document/Document.h"

namespace tessaryn {

// The active lines below `limit`, ascending.
std::vector<int> ActiveLines(int limit, const Document& doc = Doc);

// Is this line one of them?
bool IsActive(int line, int limit, const Document& doc = Doc);

// The highest active line that is an open Premise; 0 if there is none.
int InnermostOpenPremise(int limit, const Document& doc = Doc);

}  // namespace tessaryn
