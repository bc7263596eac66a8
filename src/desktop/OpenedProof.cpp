// Looks over each proof that is opened, on a thread beside the window's.
#include <exception>
#include <string>

#include "check/Check.h"
#include "desktop/Desktop.h"
#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "platform/Platform.h"

namespace tessaryn {

namespace {

int Opened = 0;  // proofs so far

// Why a proof is refused; "" if it is not.
std::string FaultIn(const Document& document) {
    try {
        const check::CheckedProof proof = check::CheckProof(WriteProof(document));
        return proof.verdict == check::Verdict::Refused ? proof.sentence : "";
    } catch (const std::exception&) {
        return "";  // memory is short: nothing is said of it
    }
}

}  // namespace

void ProofOpened() {
    RunBeside([copy = CopyForAnotherThread()] { return FaultIn(copy); },
              [number = ++Opened, fileName = ProofFileName](const std::string& fault) {
                  if (fault.empty() || number != Opened || fileName != ProofFileName) return;
                  Tell("This proof is not sound: " + fault + ".");
              });
}

}  // namespace tessaryn
