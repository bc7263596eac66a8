// How far long work is.
#pragma once

namespace tessaryn {

inline int LongWorkShownAfter = 1000;  // milliseconds

}  // namespace tessaryn
