// What is opened is looked over while the user goes on.
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <QThreadPool>

#include "desktop/Messages.h"
#include "document/Document.h"
#include "document/ProofFile.h"
#include "menu/StartProgram.h"
#include "output/ProofCommands.h"
#include "platform/Files.h"

using namespace tessaryn;

namespace {

// The path of a proof of the line P, a premise or, if it is forged, by Detach.
std::string OneLine(const QTemporaryDir& directory, const char* name, bool forged) {
    const std::string bytes = "Tessaryn 1" + std::string("\1\0\0\0", 4) + (forged ? '\x10' : '\1') +
                              std::string(15, '\0') +
                              std::string("\1\0\0\0\0\0\0\0\3\0\0\0\3\0\0\0\7\0\0\0", 20) +
                              std::string(1, forged ? '\x0C' : '\x0D') + std::string(13, '\0') +
                              std::string(forged ? "\x10\0" : "\x11\0", 2) + "1\tP\r\n\t" +
                              (forged ? "Detach" : "Premise") + "\r\n\r\n";
    std::string path = directory.filePath(QString::fromUtf8(name)).toStdString();
    EXPECT_EQ(ReplaceFile(path, bytes), "");
    return path;
}

void WaitForTheChecker() {
    QThreadPool::globalInstance()->waitForDone();
    QTest::qWait(1);
}

}  // namespace

TEST(OpenedProof, ANoteTellsWhichLineDoesNotFollow) {
    StartProgram();
    const QTemporaryDir directory;
    const std::string forged = OneLine(directory, "forged.proof", true);
    const std::string good = OneLine(directory, "good.proof", false);
    ForgetNote();
    ReadProofFile(forged);
    ASSERT_EQ(StmtCount, 1) << "it opens all the same";
    WaitForTheChecker();
    EXPECT_EQ(NoteShown(), QStringLiteral("This proof is not sound: line 1 does not follow by "
                                          "Detach (a reference is missing)."));
    ForgetNote();
    ReadProofFile(good);
    ASSERT_EQ(StmtCount, 1);
    WaitForTheChecker();
    EXPECT_EQ(NoteShown(), QString());
    // What has been left behind by then is told no more.
    ReadProofFile(forged);
    ReadProofFile(good);
    WaitForTheChecker();
    EXPECT_EQ(NoteShown(), QString());
    ForgetNote();
}
