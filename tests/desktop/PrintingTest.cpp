// Printing where there is no printer: a PDF that the user names.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/Desktop.h"
#include "mainwindow/ProgramState.h"
#include "output/Printing.h"
#include "output/Settings.h"
#include "view/Display.h"

using namespace tessaryn;

namespace {

// By the last file dialogue, when it came up.
QString DirectoryShown;
QString NameShown;

// Answers the file dialogue that comes next; "" cancels it.
void AnswerFileDialogue(const QString& path) {
    QTimer::singleShot(50, qApp, [path] {
        auto* dialogue = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialogue == nullptr) return AnswerFileDialogue(path);
        DirectoryShown = dialogue->directory().path();
        NameShown = dialogue->selectedFiles().value(0);
        dialogue->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QDialog& answered = *dialogue;
        path.isEmpty() ? answered.reject() : answered.accept();
    });
}

PrintResult PrintTo(const QString& path) {
    AnswerFileDialogue(path);
    int width = 0;
    int height = 0;
    const PrintResult ready = WYSIWYG_RTF(WorkArea.RTB, Inch, Inch, Inch, Inch, width, height);
    return ready == PrintResult::Done ? PrintRTF(WorkArea.RTB, Inch, Inch, Inch, Inch) : ready;
}

void FillWorkArea(int lines) {
    std::string text;
    for (int i = 1; i <= lines; ++i) {
        text += std::to_string(i) + "\tx e s & " + std::string(i % 7 == 0 ? 400 : 20, 'y') + "\r\n";
    }
    const int length = static_cast<int>(text.size());
    SetContent(WorkArea.RTB, text, {{0, length, {StatementFont, 10, Black, false}}});
}

int PagesOf(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return -1;
    return static_cast<int>(file.readAll().count("/Type /Page\n"));
}

}  // namespace

TEST(Printing, PutsAllPagesIntoAPdf) {
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "there is a printer";
    StartProgram();
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("my proof.pdf"));
    FillWorkArea(500);  // one line in seven takes six rows: some 860 rows of 61 to a page
    EXPECT_EQ(PrintTo(file), PrintResult::Done);
    EXPECT_GE(PagesOf(file), 13);
    EXPECT_LE(PagesOf(file), 17);

    // The proof's name is suggested; a new proof begins in the default directory.
    ASSERT_TRUE(QDir(directory.path()).mkdir(QStringLiteral("begin")));
    DefaultDir = directory.filePath(QStringLiteral("begin")).toStdString();
    EXPECT_EQ(PrintTo(QString()), PrintResult::Cancelled);
    EXPECT_EQ(DirectoryShown.toStdString(), DefaultDir);
    ProofFileName = directory.filePath(QStringLiteral("sets.proof")).toStdString();
    EXPECT_EQ(PrintTo(QString()), PrintResult::Cancelled);
    EXPECT_EQ(NameShown, directory.filePath(QStringLiteral("sets.pdf")));
}
