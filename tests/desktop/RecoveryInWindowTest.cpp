// Copies of unsaved work in the window.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QTemporaryDir>
#include <QThreadPool>
#include <ctime>
#include <iostream>

#include "../output/WrittenProof.h"
#include "AnsweredFileBox.h"
#include "desktop/Desktop.h"
#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "menu/StartProgram.h"
#include "output/Recovery.h"
#include "platform/Events.h"
#include "view/Display.h"
#include "view/Undo.h"

using namespace tessaryn;

namespace {

// Milliseconds for which this thread has been at work.
double Worked() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace

TEST(RecoveryInWindow, ACopyOfALongProofHoldsNobodyUp) {
    StartProgram();
    ShowMainWindow(Proof);
    while (StmtCount < 32000) AddLine("ALL(x):[x @ S => EXIST(y):f(x)=y]", Rule::Premise);
    RelayoutViewer();
    ResetFonts();
    SyncWindows();
    QApplication::processEvents();
    const QTemporaryDir home;
    RecoveryDir = home.path().toStdString();
    ProofChanged = true;
    double longest = 0;
    for (int copies = 0; copies < 5; ++copies) {
        const double before = Worked();
        Dispatch(KeepCopy);
        QThreadPool::globalInstance()->waitForDone();
        QApplication::processEvents();
        longest = std::max(longest, Worked() - before);
        EditAt(16000).Highlight = !At(16000).Highlight;
    }
    std::cerr << "a copy of 32,000 statements: " << longest << " ms of the window's thread\n";
    EXPECT_EQ(QDir(home.path()).entryList({QStringLiteral("*.proof")}).size(), 1);
#ifndef __SANITIZE_ADDRESS__
    EXPECT_LT(longest, 5.0);
#endif
    EndKeepingCopies();
}

// And leaves it to the dialogues of no other program.
TEST(RecoveryInWindow, OpenShowsTheFolderAmongItsPlacesAndThatOfTheExamples) {
    StartProgram();
    const QTemporaryDir home;
    RecoveryDir = home.path().toStdString();
    const QList<QUrl> places{QUrl::fromLocalFile(home.path()),
                             QUrl::fromLocalFile(QStringLiteral(TESSARYN_SOURCE_DIR "/examples"))};
    QTimer::singleShot(0, qApp, [&places] {
        const auto* box = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        for (const QUrl& place : places) EXPECT_TRUE(box->sidebarUrls().contains(place));
    });
    AnswerFileDialogue(QString());
    EXPECT_TRUE(SendChoose(Proof.optOpen));
    AwaitAnswer();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QList<QUrl> kept = QFileDialog().sidebarUrls();
    for (const QUrl& place : places) EXPECT_FALSE(kept.contains(place));
}
