// Any bytes as a script of actions. Seeds lie in corpus/script; tests/scripts and examples hold
// more, script.dict the words.
#include "FuzzedProgram.h"
#include "MemoryFiles.h"

using namespace tessaryn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MemoryFiles.clear();
    RunAnyScript(std::string(data, data + size), "");
    return 0;
}
