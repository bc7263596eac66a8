// Printing where there is no printer: a PDF that the user names.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <cerrno>

#include "AnsweredFileBox.h"
#include "Faults.h"
#include "document/Document.h"
#include "mainwindow/ProgramState.h"
#include "menu/StartProgram.h"
#include "output/Printing.h"
#include "output/Settings.h"
#include "platform/Platform.h"
#include "view/Display.h"

using namespace tessaryn;

namespace {

PrintResult PrintTo(const QString& path) {
    AnswerFileDialogue(path);
    PrintResult result = PrintResult::Failed;
    WYSIWYG_RTF(WorkArea.RTB, Inch, Inch, Inch, Inch, [&](PrintResult ready, int, int) {
        result =
            ready == PrintResult::Done ? PrintRTF(WorkArea.RTB, Inch, Inch, Inch, Inch) : ready;
    });
    AwaitAnswer();
    return result;
}

void FillWorkArea(int lines) {
    std::string text;
    for (int i = 1; i <= lines; ++i) {
        const std::string name(i % 7 == 0 ? 400 : 20, 'y');
        text += std::to_string(i) + "\tx e s & " + name + "\r\n\tAxiom\r\n\r\n";
    }
    const int length = static_cast<int>(text.size());
    WorkArea.RTB.SetContent(text, {{0, length, {StatementFont, 10, Black, false}}});
}

QByteArray ContentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// As a PDF holds it.
QByteArray TitleEntry(const QString& title) {
    QByteArray entry("/Title (\xFE\xFF");
    for (const QChar c : title) {
        entry += static_cast<char>(c.row());
        entry += static_cast<char>(c.cell());
    }
    return entry + ')';
}

}  // namespace

TEST(Printing, PutsAllPagesIntoAPdf) {
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "there is a printer";
    StartProgram();
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("my proof.pdf"));
    FillWorkArea(170);  // one line in seven takes six rows: some 620 rows of 61 to a page
    ProofCaption = "S\xC3\xA4tze";
    EXPECT_EQ(PrintTo(file), PrintResult::Done);
    EXPECT_EQ(FileBoxShown.title, QStringLiteral("Print to PDF"));
    const QByteArray pdf = ContentOf(file);
    EXPECT_TRUE(pdf.contains(TitleEntry(QStringLiteral("S\u00E4tze"))));

    EXPECT_NEAR(static_cast<int>(pdf.count("/Type /Page\n")), 11, 2);

    // The proof's name is suggested; a new proof begins in the default directory.
    ASSERT_TRUE(QDir(directory.path()).mkdir(QStringLiteral("begin")));
    DefaultDir = directory.filePath(QStringLiteral("begin")).toStdString();
    EXPECT_EQ(PrintTo(QString()), PrintResult::Cancelled);
    EXPECT_EQ(FileBoxShown.directory.toStdString(), DefaultDir);
    ProofFileName = directory.filePath(QStringLiteral("sets.proof")).toStdString();
    EXPECT_EQ(PrintTo(QString()), PrintResult::Cancelled);
    EXPECT_EQ(FileBoxShown.name, directory.filePath(QStringLiteral("sets.pdf")));
}

TEST(Printing, APdfThatCannotBeWrittenLeavesTheOldOne) {
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "there is a printer";
    StartProgram();
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("own.pdf"));
    FillWorkArea(3);
    QTimer overTheOldOne;
    QObject::connect(&overTheOldOne, &QTimer::timeout, [] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) box->button(QMessageBox::Yes)->click();
    });
    overTheOldOne.start(1);
    int failures = 0;
    bool reached = true;
    for (int call = 1; reached; ++call) {
        QFile(path).remove();
        QFile::copy(QStringLiteral(TESSARYN_SOURCE_DIR "/README.md"), path);
        InjectFault(qPrintable(directory.path()), call, ENOSPC);
        const bool failed = PrintTo(path) == PrintResult::Failed;
        reached = CallsSoFar() >= call;
        InjectFault("", 0, 0);
        EXPECT_EQ(PrintFault, failed ? "The disk is full." : "");
        failures += failed ? 1 : 0;
        EXPECT_TRUE(ContentOf(path).startsWith(failed ? "# Tessaryn" : "%PDF")) << call;
        EXPECT_EQ(QDir(directory.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }
    EXPECT_GT(failures, 2);
}
