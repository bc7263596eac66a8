#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "AnsweredFileBox.h"
#include "mainwindow/Proof.h"
#include "menu/StartProgram.h"
#include "output/ProofCommands.h"
#include "platform/Events.h"
#include "platform/Platform.h"

using namespace tessaryn;

TEST(FileDialogs, OpenFindsAProofByItsNameWithoutEnding) {
    const QTemporaryDir directory;
    for (const char* name : {"kbd.proof", "both", "both.proof"}) {
        QFile file(directory.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    for (const auto& [entered, found] : {std::pair("kbd", "kbd.proof"), std::pair("both", "both"),
                                         std::pair("both.proof", "both.proof")}) {
        AnswerFileDialogue(QString::fromLatin1(entered));
        ChosenFile chosen;
        ShowOpen({"", ProofFilter, directory.path().toStdString(), false, true},
                 [&](const ChosenFile& file) { chosen = file; });
        AwaitAnswer();
        EXPECT_EQ(chosen, directory.filePath(QString::fromLatin1(found)).toStdString()) << entered;
    }
}

TEST(FileDialogs, EachTellsWhatItIsFor) {
    StartProgram();
    for (const auto& [item, title] :
         {std::pair(&Proof.optOpen, "Open"), std::pair(&Proof.optSaveAs, "Save as"),
          std::pair(&Proof.optHTML, "Make HTML File")}) {
        AnswerFileDialogue(QString());
        EXPECT_TRUE(SendChoose(*item));
        AwaitAnswer();
        EXPECT_EQ(FileBoxShown.title, QString::fromLatin1(title));
    }
}
