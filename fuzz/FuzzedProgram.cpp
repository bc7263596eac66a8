#include "FuzzedProgram.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <regex>

#include "cli/HeadlessPlatform.h"
#include "cli/ScriptRunner.h"
#include "document/DamagedDocument.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "platform/Events.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace tessaryn {

void Require(const std::string& brokenLaw) {
    if (brokenLaw.empty()) return;
    std::fprintf(stderr, "broken: %s\n", brokenLaw.c_str());
    std::abort();
}

bool OpenFile(const std::string& path) {
    const std::string name = ProofFileName;
    const std::string title = Proof.Caption;
    OperationCancelled = false;
    Headless.Files.push_back(path);
    SendChoose(Proof.optOpen);
    if (!OperationCancelled) return true;
    if (ProofFileName != name || Proof.Caption != title) Require("a refusal changes name or title");
    return false;
}

RandomNumber NumbersOf(const std::uint8_t* data, std::size_t size) {
    return [data, end = data + size,
            more = RandomNumbers(static_cast<unsigned>(size))](std::size_t limit) mutable {
        std::size_t number = 0;
        for (std::size_t top = limit - 1; top > 0; top >>= 8) {
            number = number << 8 | (end == data ? more(256) : *--end);
        }
        return number % limit;
    };
}

void RunAnyScript(const std::string& script, const std::string& settingsDir) {
    const ScriptResult result = RunScript(script, "script", {settingsDir, true, true});
    // At the head of the reason: a script may well hold these words itself.
    static const std::regex fault(
        "(^|\n)script:[0-9]+: (unexpected failure|the document does not agree with itself): ");
    if (std::regex_search(result.error, fault)) Require(result.error);
    for (const std::string& reason : Headless.Beeps) {
        if (reason.starts_with("Something went wrong inside the program")) Require(reason);
    }
    for (const MessageShown& message : Headless.Messages) {
        if (message.title == "INTERNAL ERROR") Require(message.text);
    }
}

std::size_t ChangedProof(std::uint8_t* data, std::size_t size, std::size_t maxSize, unsigned seed) {
    const RandomNumber random = RandomNumbers(seed);
    const std::string bytes(data, data + size);
    std::optional<Document> proof = random(2) == 0 ? ReadProof(bytes) : std::nullopt;
    if (!proof || proof->StmtCount == 0) return LLVMFuzzerMutate(data, size, maxSize);
    Doc = *proof;
    const std::size_t proofSize = WriteProof().size();
    DamageDocument(random);
    const std::string damaged = WriteProof() + bytes.substr(std::min(size, proofSize));
    return damaged.copy(reinterpret_cast<char*>(data), maxSize);
}

}  // namespace tessaryn
