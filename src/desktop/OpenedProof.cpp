// Looks over each proof that is opened, on a thread beside the window's.
#include <QObject>
#include <QThreadPool>
#include <string>
#include <utility>

#include "check/Check.h"
#include "desktop/Desktop.h"
#include "document/ProofFile.h"
#include "mainwindow/ProgramState.h"
#include "platform/Platform.h"

namespace tessaryn {

namespace {

int Opened = 0;  // proofs so far

void TellFault(int proof, const std::string& fileName, const std::string& sentence) {
    if (proof != Opened || fileName != ProofFileName || Ending()) return;
    Tell("This proof is not sound: " + sentence + ".");
}

}  // namespace

void ProofOpened() {
    static QObject window;  // for its thread
    const int number = ++Opened;
    auto look = [number, fileName = ProofFileName, bytes = WriteProof()]() mutable {
        const check::CheckedProof proof = check::CheckProof(std::move(bytes));
        if (proof.verdict != check::Verdict::Refused) return;
        QMetaObject::invokeMethod(
            &window, [=] { TellFault(number, fileName, proof.sentence); }, Qt::QueuedConnection);
    };
    QThreadPool::globalInstance()->start(std::move(look));
}

}  // namespace tessaryn
