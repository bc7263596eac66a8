#include "desktop/DataFolder.h"

#include <QCoreApplication>
#include <QDir>

namespace tessaryn {

namespace {

// The folder share/tessaryn/NAME of the installed program, or inSources of the source tree that it
// was built in, whichever holds files of the pattern; "" if there is none.
QString DataFolder(const QString& name, const QString& inSources, const QString& pattern) {
    const auto holdsFiles = [&pattern](const QDir& dir) {
        return !dir.entryList({pattern}, QDir::Files).isEmpty();
    };
    QDir dir(QCoreApplication::applicationDirPath());
    do {
        for (const QString& place : {QStringLiteral("share/tessaryn/") + name, inSources}) {
            const QDir folder(dir.filePath(place));
            if (holdsFiles(folder)) return folder.absolutePath();
        }
    } while (dir.cdUp());
    const QDir sources(QDir(QStringLiteral(TESSARYN_SOURCE_DIR)).filePath(inSources));
    return holdsFiles(sources) ? sources.absolutePath() : QString();
}

}  // namespace

QString ManualFolder() {
    return DataFolder(QStringLiteral("manual"), QStringLiteral("docs/manual"),
                      QStringLiteral("*.md"));
}

QString ExamplesFolder() {
    return DataFolder(QStringLiteral("examples"), QStringLiteral("examples"),
                      QStringLiteral("*.proof"));
}

}  // namespace tessaryn
