// The manual in a window of its own: a list of its pages, and the page.
#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPointer>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTextBrowser>
#include <QUrl>
#include <QWidget>

#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "platform/Platform.h"

namespace tessaryn {

namespace {

// The installed manual, or that of the source tree that the program was built in; "" if none.
QString ManualDir() {
    QDir dir(QCoreApplication::applicationDirPath());
    do {
        for (const char* place : {"share/tessaryn/manual", "docs/manual"}) {
            const QDir manual(dir.filePath(QLatin1String(place)));
            if (!manual.entryList({QStringLiteral("*.md")}, QDir::Files).isEmpty()) {
                return manual.absolutePath();
            }
        }
    } while (dir.cdUp());
    const QString sources = QStringLiteral(TESSARYN_MANUAL_DIR);
    return QDir(sources).exists() ? sources : QString();
}

// The first heading of a page; its file name if it has none.
QString TitleOf(const QString& path) {
    QFile file(path);
    if (file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        while (!file.atEnd()) {
            const QString line = QString::fromUtf8(file.readLine()).trimmed();
            if (line.startsWith(QStringLiteral("# "))) return line.mid(2);
        }
    }
    return QFileInfo(path).completeBaseName();
}

QStringList LinkedPages(const QString& path) {
    static const QRegularExpression link(QStringLiteral("\\]\\(([\\w-]+\\.md)"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return {};
    QStringList names;
    auto links = link.globalMatch(QString::fromUtf8(file.readAll()));
    while (links.hasNext()) names.append(links.next().captured(1));
    return names;
}

class HelpWindow : public QWidget {
  public:
    explicit HelpWindow(const QString& directory) : directory_(directory) {
        setFont(TellingFont());
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowTitle(QStringLiteral("Tessaryn Manual"));
        auto* parts = new QSplitter(this);
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(parts);
        parts->addWidget(&pages_);
        parts->addWidget(&text_);
        parts->setStretchFactor(1, 1);
        pages_.setAccessibleName(QStringLiteral("Pages"));
        text_.setAccessibleName(QStringLiteral("Page"));
        text_.setOpenLinks(false);
        FillPages();
        const int list = pages_.sizeHintForColumn(0) + 30;
        parts->setSizes({list, 1000 - list});
        connect(&pages_, &QListWidget::currentRowChanged, this, [this](int row) {
            Open(QUrl::fromLocalFile(pages_.item(row)->data(Qt::UserRole).toString()));
        });
        connect(&text_, &QTextBrowser::anchorClicked, this,
                [this](const QUrl& link) { Open(text_.source().resolved(link)); });
        connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
        resize(QSize(1000, 700).boundedTo(screen()->availableSize()));
        pages_.setCurrentRow(0);
    }

  private:
    // In the order in which index.md links to them, itself first.
    void FillPages() {
        const QDir dir(directory_);
        QStringList names{QStringLiteral("index.md")};
        names += LinkedPages(dir.filePath(names[0]));
        names += dir.entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
        names.removeDuplicates();
        names.removeIf([&](const QString& name) { return !dir.exists(name); });
        for (const QString& name : names) {
            const QString path = dir.filePath(name);
            auto* item = new QListWidgetItem(TitleOf(path), &pages_);
            item->setData(Qt::UserRole, path);
        }
    }

    void Open(const QUrl& url) {
        if (!url.isLocalFile()) {
            QDesktopServices::openUrl(url);
            return;
        }
        text_.setSource(url, QTextDocument::MarkdownResource);
        for (int row = 0; row < pages_.count(); ++row) {
            const bool shown = pages_.item(row)->data(Qt::UserRole).toString() == url.toLocalFile();
            if (!shown) continue;
            const QSignalBlocker quiet(pages_);
            pages_.setCurrentRow(row);
        }
    }

    QString directory_;
    QListWidget pages_;
    QTextBrowser text_;
};

}  // namespace

bool ShowHelpFile(const std::string&) {
    static QPointer<HelpWindow> window;
    if (!window) {
        const QString directory = ManualDir();
        if (directory.isEmpty()) return false;
        window = new HelpWindow(directory);
    }
    window->show();
    window->raise();
    window->activateWindow();
    return true;
}

void OpenWebSite(const std::string& address) {
    QDesktopServices::openUrl(QUrl(ToQt(address)));
}

}  // namespace tessaryn
