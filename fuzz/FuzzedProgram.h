// What the targets that run the whole program share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "document/RandomWalk.h"

namespace tessaryn {

// Ends the target with a crash that names the law, unless that is "".
void Require(const std::string& brokenLaw);

// Opens a file of MemoryFiles as the user does. False, with the open proof left as it was, if it is
// refused.
bool OpenFile(const std::string& path);

// Numbers off the end of an input, where a proof file may hold anything; then random ones.
RandomNumber NumbersOf(const std::uint8_t* data, std::size_t size);

// The custom mutator of targets that take a proof file: half of its changes are such as leave a
// file that opens. Gives the new size.
std::size_t ChangedProof(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed);

// Runs a script with all checks. What it expects may fail; the program may not.
void RunAnyScript(const std::string& script, const std::string& settingsDir);

}  // namespace tessaryn
