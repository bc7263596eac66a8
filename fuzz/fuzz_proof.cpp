// Any bytes as a proof file: what opens is whole, whatever the user then does, and can be printed,
// made a page, saved and opened again. Seeds lie in corpus/proof; bytes behind the proof steer the
// user.
#include "FuzzedProgram.h"
#include "MemoryFiles.h"
#include "cli/HeadlessPlatform.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "output/HTML.h"
#include "output/Printing.h"
#include "output/ProofCommands.h"

using namespace tessaryn;

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
    return ChangedProof(data, size, maxSize, seed);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MemoryFiles = {{"any.proof", std::string(data, data + size)}};
    StartHeadless();
    if (!OpenFile("any.proof")) return 0;
    Require(BrokenDocumentLaw());
    const RandomNumber random = NumbersOf(data, size);
    {
        RandomWalk walk(random);
        for (std::size_t steps = random(64); steps > 0 && ProofText.size() < 50000; --steps) {
            walk.Step();
            Require(BrokenDocumentLaw());
        }
    }
    HTMLPage();
    if (StmtCount > 0) PrintStatements(1, StmtCount, [](PrintResult) {});
    ProofFileName = "saved.proof";
    if (!SaveProof()) Require("what is open can't be saved");
    if (!OpenFile("saved.proof")) Require("what is saved can't be opened");
    Require(BrokenDocumentLaw());
    return 0;
}
