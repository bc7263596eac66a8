// Any bytes as a proof file for the checker: it comes to a verdict, and what it accepts can be told
// of, opens in the editor, and reads there as it was judged. Seeds lie in corpus/check.
#include "FuzzedProgram.h"
#include "check/Check.h"
#include "document/Document.h"
#include "document/ProofFile.h"

using namespace tessaryn;

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
    return ChangedProof(data, size, maxSize, seed);
}

namespace {

std::string WithoutBreaks(std::string text) {
    for (std::size_t at = 0; (at = text.find("\r\n", at)) != text.npos;) text.replace(at, 2, " ");
    return text;
}

std::string BrokenLaw(const std::string& bytes) {
    const check::CheckedProof proof = check::CheckProof(bytes);
    const bool accepted = proof.verdict == check::Verdict::Accepted;
    if (proof.sentence.empty() != accepted) return "a verdict without its sentence";
    if (check::Summary(proof).empty()) return "nothing to say";
    if (!accepted) return "";
    const std::optional<Document> opened = ReadProof(bytes);
    if (!opened) return "what is accepted can't be opened";
    if (opened->StmtCount != proof.Count()) return "what is accepted opens as something else";
    for (int line = 1; line <= proof.Count(); ++line) {
        if (proof.Text(line) != WithoutBreaks(StmtText(line, *opened))) return "another text";
        if (proof.Key(line).empty()) return "a statement without a key";
        proof.RestsOn(line);
    }
    return "";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Require(BrokenLaw(std::string(data, data + size)));
    return 0;
}
