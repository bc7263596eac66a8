// Printing where there is no printer: a PDF that the user names.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPrinterInfo>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <cerrno>
#include <optional>

#include "AnsweredFileBox.h"
#include "Faults.h"
#include "desktop/LongWorkBox.h"
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
    std::optional<PrintResult> result;
    const auto keep = [&](PrintResult end) { result = end; };
    WYSIWYG_RTF(WorkArea.RTB, Inch, Inch, Inch, Inch, [&](PrintResult ready, int, int) {
        if (ready != PrintResult::Done) return keep(ready);
        PrintRTF(WorkArea.RTB, Inch, Inch, Inch, Inch, keep);
    });
    AwaitAnswer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, 60000));
    return result.value_or(PrintResult::Failed);
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

// Behind its box long work goes on to the end, or until it is cancelled: then there is no file.
TEST(Printing, ShowsHowFarItIsAndCanBeCancelled) {
    if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "there is a printer";
    StartProgram();
    const QTemporaryDir directory;
    const QString file = directory.filePath(QStringLiteral("long.pdf"));
    FillWorkArea(2000);
    LongWorkShownAfter = 0;
    int shown = 0;
    bool cancels = true;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        QWidget* box = QApplication::activeModalWidget();
        auto* bar = box == nullptr ? nullptr : box->findChild<QProgressBar*>();
        if (bar == nullptr) return;
        shown = std::max(shown, bar->value());
        if (cancels && bar->value() > 100) box->findChild<QPushButton*>()->click();
    });
    user.start(1);
    EXPECT_EQ(PrintTo(file), PrintResult::Cancelled);
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_LT(shown, 900);
    cancels = false;
    EXPECT_EQ(PrintTo(file), PrintResult::Done);
    EXPECT_TRUE(ContentOf(file).startsWith("%PDF"));
    LongWorkShownAfter = 1000;
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
