// Files dropped on the main window.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include "../OwnDirectory.h"
#include "desktop/Desktop.h"
#include "desktop/PaintedText.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "menu/StartProgram.h"
#include "output/ProofCommands.h"
#include "output/SaveChanges.h"
#include "view/Undo.h"

using namespace tessaryn;

using FileDrop = OwnDirectory;

TEST_F(FileDrop, OneProofFileIsOpenedAsByOpen) {
    StartProgram();
    ShowMainWindow(Proof);
    QApplication::processEvents();
    ProofFileName = Path("a.proof");
    ASSERT_TRUE(SaveProof());
    std::filesystem::copy(Path("a.proof"), Path("no ending"));
    std::filesystem::create_directory(Path("folder.proof"));
    WriteFile("text.txt", "P => Q");
    ProofFileName.clear();

    const auto drag = [&](const QStringList& names, bool drop) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : names) {
            urls << (name.contains(QLatin1Char(':')) ? QUrl(name)
                                                     : QUrl::fromLocalFile(ToQt(Path("")) + name));
        }
        data.setUrls(urls);
        const auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter({50, 50}, actions, &data, Qt::LeftButton, {});
        QApplication::sendEvent(MainWindow(), &enter);
        if (!drop) return enter.isAccepted();
        QDropEvent event({50, 50}, actions, &data, Qt::LeftButton, {});
        QApplication::sendEvent(MainWindow(), &event);
        EXPECT_EQ(event.dropAction(), Qt::CopyAction) << "the file stays where it came from";
        QApplication::processEvents();
        return event.isAccepted();
    };
    const QString proof = QStringLiteral("a.proof");
    EXPECT_TRUE(drag({proof}, false));
    EXPECT_TRUE(drag({QStringLiteral("no ending")}, false));
    EXPECT_FALSE(drag({QStringLiteral("text.txt")}, false));
    EXPECT_FALSE(drag({QStringLiteral("folder.proof")}, false));
    EXPECT_FALSE(drag({QStringLiteral("missing.proof")}, false));
    EXPECT_FALSE(drag({QStringLiteral("https://example.org/a.proof")}, false));
    EXPECT_FALSE(drag({proof, QStringLiteral("no ending")}, false));

    EXPECT_TRUE(drag({proof}, true));
    EXPECT_EQ(ProofFileName, Path("a.proof"));
    ProofChanged = true;
    EXPECT_TRUE(drag({QStringLiteral("no ending")}, true));
    EXPECT_TRUE(SaveChanges.Visible);
    EXPECT_FALSE(drag({proof}, false)) << "while something is asked";
    Dispatch([] { SaveChanges.cmdNo.Click(); });
    EXPECT_EQ(ProofFileName, Path("no ending"));
}
