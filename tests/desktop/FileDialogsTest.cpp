#include <gtest/gtest.h>

#include <QtGui/private/qguiapplication_p.h>
#include <QtGui/qpa/qplatformdialoghelper.h>
#include <QtGui/qpa/qplatformtheme.h>
#include <QMessageBox>
#include <QTemporaryDir>

#include "AnsweredFileBox.h"
#include "mainwindow/Proof.h"
#include "menu/StartProgram.h"
#include "output/ProofCommands.h"
#include "platform/Events.h"
#include "platform/Platform.h"

using namespace tessaryn;

namespace {

QStringList Typed;  // what the user enters in the dialogue of a desktop environment; "" cancels

// Knows no endings and asks nothing.
class NativeDialogue : public QPlatformFileDialogHelper {
  public:
    bool show(Qt::WindowFlags, Qt::WindowModality, QWindow*) override {
        path_ = Typed.takeFirst();
        QTimer::singleShot(0, this,
                           path_.isEmpty() ? &NativeDialogue::reject : &NativeDialogue::accept);
        return true;
    }
    void exec() override {}
    QList<QUrl> selectedFiles() const override { return {QUrl::fromLocalFile(path_)}; }
    void hide() override {}
    bool defaultNameFilterDisables() const override { return false; }
    void setDirectory(const QUrl&) override {}
    QUrl directory() const override { return {}; }
    void selectFile(const QUrl&) override {}
    void setFilter() override {}
    void selectNameFilter(const QString&) override {}
    QString selectedNameFilter() const override { return {}; }

  private:
    QString path_;
};

// Until the end of its scope, there is a desktop environment.
class Environment : public QPlatformTheme {
  public:
    Environment() { std::swap(QGuiApplicationPrivate::platform_theme, other_); }
    ~Environment() override { std::swap(QGuiApplicationPrivate::platform_theme, other_); }
    bool usePlatformNativeDialog(DialogType type) const override { return type == FileDialog; }
    QPlatformDialogHelper* createPlatformDialogHelper(DialogType) const override {
        return new NativeDialogue;
    }

  private:
    QPlatformTheme* other_ = this;
};

}  // namespace

TEST(FileDialogs, ANameThatGetsItsEndingLateGoesOverNoFileUnasked) {
    const QTemporaryDir directory;
    const QString there = directory.filePath(QStringLiteral("there"));
    ASSERT_TRUE(QFile(there + QStringLiteral(".proof")).open(QIODevice::WriteOnly));
    const QString other = directory.filePath(QStringLiteral("other"));
    const Environment environment;
    const struct {
        QStringList typed;
        QString saved;
        int questions;
    } cases[] = {{{there, there}, there, 2},
                 {{there, other}, other, 1},
                 {{there, QString()}, QString(), 1},
                 {{there + QStringLiteral(".proof")}, there, 0}};
    for (const auto& [typed, saved, questions] : cases) {
        Typed = typed;
        ChosenFile chosen;
        ShowSave({"", ProofFilter, "", true, false},
                 [&](const ChosenFile& path) { chosen = path; });
        int asked = 0;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr)
                box->button(++asked == 1 ? QMessageBox::No : QMessageBox::Yes)->click();
            return !QuestionsOpen();
        }));
        EXPECT_EQ(chosen.value_or(""), saved.isEmpty() ? "" : saved.toStdString() + ".proof");
        EXPECT_EQ(asked, questions);
    }
}

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
