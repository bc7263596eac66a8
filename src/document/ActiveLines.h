// Which lines of a proof are in force at a place of it.
//
// A line is active ahead of a limit if it stands above the limit and in no block that is closed
// there: only such lines can be used by a rule. Whether a line is shown plays no part.
#pragma once

#include <vector>

#include "document/Document.h"

namespace tessaryn {

// The walk past closed blocks, both ways: from a closed Premise on to its Conclusion, which is in
// force where the block is not, and from a Conclusion back to ahead of its block.
int LineBehind(int line, const Document& doc = Doc);
int LineAhead(int line, const Document& doc = Doc);

// The active lines from `first` on, which is in no closed block, to below `limit`; ascending.
std::vector<int> ActiveLines(int first, int limit, const Document& doc = Doc);
inline std::vector<int> ActiveLines(int limit, const Document& doc = Doc) {
    return ActiveLines(1, limit, doc);
}

// Is this line one of them?
bool IsActive(int line, int limit, const Document& doc = Doc);

// The highest active line that is an open Premise; 0 if there is none.
int InnermostOpenPremise(int limit, const Document& doc = Doc);

}  // namespace tessaryn
