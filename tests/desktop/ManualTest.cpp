#include "desktop/Manual.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

using namespace tessaryn;

namespace {

QString ContentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

QStringList LinksIn(const QString& path) {
    static const QRegularExpression link(QStringLiteral("\\]\\(([^)\\s]+)\\)"));
    QStringList links;
    for (const auto& found : link.globalMatch(ContentOf(path))) links.append(found.captured(1));
    return links.filter(QRegularExpression(QStringLiteral("^(?!https?:)")));
}

bool LeadsSomewhere(const QString& path, const QString& link) {
    const QUrl target = QUrl::fromLocalFile(path).resolved(QUrl(link));
    const QFileInfo file(target.toLocalFile());
    if (!target.hasFragment()) return file.exists();
    Manual pages{ReadPages(file.path()), {}, {}};
    return TargetOf(pages, 0, target).start >= 0;
}

}  // namespace

TEST(Manual, EveryLinkLeadsSomewhereAndTheContentsToEveryPage) {
    const QDir root(QStringLiteral(TESSARYN_SOURCE_DIR));
    const QStringList contents = LinksIn(root.filePath(QStringLiteral("docs/manual/index.md")));
    for (const char* directory : {".", "docs", "docs/manual"}) {
        const QDir dir(root.filePath(QLatin1String(directory)));
        for (const auto& file : dir.entryInfoList({QStringLiteral("*.md")})) {
            for (const QString& link : LinksIn(file.filePath())) {
                EXPECT_TRUE(LeadsSomewhere(file.filePath(), link))
                    << file.fileName().toStdString() << ": " << link.toStdString();
            }
            const bool page = dir.dirName() == QStringLiteral("manual");
            if (page && file.fileName() != QStringLiteral("index.md")) {
                EXPECT_TRUE(contents.contains(file.fileName())) << file.fileName().toStdString();
            }
        }
    }
}

TEST(Manual, PagesAreReadToTheirEndWithoutBackslashesAndComments) {
    Manual manual{ReadPages(QStringLiteral(TESSARYN_SOURCE_DIR "/docs/manual")), {}, {}};
    EXPECT_TRUE(FindInManual(manual, QStringLiteral("\\|")).empty());
    EXPECT_TRUE(FindInManual(manual, QStringLiteral("replay:")).empty());
    for (std::size_t page = 1; page < manual.pages.size(); ++page) {
        EXPECT_TRUE(TextOf(manual, static_cast<int>(page)).toPlainText().endsWith("Contents"))
            << manual.pages[page].title.toStdString();
    }
}
