// File dialogues of the tests: answered when they come up.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "platform/Questions.h"

namespace tessaryn {

// The last one, as it came up.
struct FileBox {
    QString title;
    QString directory;
    QString name;
};
inline FileBox FileBoxShown;

// Answers the file dialogue that comes next; "" cancels it.
inline void AnswerFileDialogue(const QString& path) {
    QTimer::singleShot(50, qApp, [path] {
        auto* dialogue = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialogue == nullptr) return AnswerFileDialogue(path);
        FileBoxShown = {dialogue->windowTitle(), dialogue->directory().path(),
                        dialogue->selectedFiles().value(0)};
        dialogue->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
        QDialog& answered = *dialogue;
        if (path.isEmpty()) return answered.reject();
        const auto* buttons = dialogue->findChild<QDialogButtonBox*>();
        EXPECT_TRUE(buttons->buttons().constFirst()->isEnabled()) << qPrintable(path);
        answered.accept();
    });
}

inline void AwaitAnswer() {
    EXPECT_TRUE(QTest::qWaitFor([] { return !QuestionsOpen(); }));
}

}  // namespace tessaryn
