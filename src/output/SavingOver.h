// The questions before a save destroys what somebody else wrote.
#pragma once

#include <cstdint>
#include <string>

#include "platform/Controls.h"
#include "platform/Fingerprint.h"
#include "platform/Questions.h"

namespace tessaryn {

// A file as it was last read or written here.
struct SeenFile {
    std::string path;        // "" for none
    std::uint64_t size = 0;  // in bytes
    Fingerprint print;       // of its first bytes, as many as were read
};
inline SeenFile SeenProofFile;  // the open proof's

SeenFile AsWritten(const std::string& path, const std::string& bytes);

// Asks if ProofFileName is the open proof's file and another program has changed it. If the user
// does not want it saved over, OperationCancelled is set; otherwise `save` is run.
void SaveUnlessChanged(EventHandler save, EventHandler otherwise);

// The same for a file that is not the open proof's, under a name that no dialogue has asked about.
void ReplaceIfWanted(const std::string& name, EventHandler save, EventHandler otherwise);

// What that asks.
Message MayReplace(const std::string& name);

}  // namespace tessaryn
