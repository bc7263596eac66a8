// Lets the system fail where a test wants it to. Linked to a test, or preloaded into a program, it
// stands between that and the calls of the system that deal with files.
#pragma once

namespace tessaryn {

// In place of an error's number.
inline constexpr int ShortWrite = -1;  // half is written
inline constexpr int Killed = -2;      // the process, as by a power cut, ahead of the call

// The call-th of the calls from now on that name a file below the directory, or have it open, has
// this effect; "" for any file. In a program, TESSARYN_FAULT="DIRECTORY:CALL:EFFECT" does the same.
extern "C" void InjectFault(const char* directory, int call, int effect);

// How many there have been. The fault has come to pass if it is as many as its number.
extern "C" int CallsSoFar();

}  // namespace tessaryn
