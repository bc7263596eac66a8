#include "desktop/Manual.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QStringList>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>

namespace tessaryn {

namespace {

constexpr int CharactersAhead = 24;  // of a place, in what a list shows around it
constexpr int CharactersShown = 120;
constexpr int Margin = 12;  // of a page, in pixels
constexpr int CellPadding = 3;
constexpr int HeadingMargin = 14;

QString ContentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The comments are for the tests, and the reader would lose what follows them.
QString WithoutComments(QString content) {
    static const QRegularExpression comment(QStringLiteral("<!--.*?-->\n"),
                                            QRegularExpression::DotMatchesEverythingOption);
    return content.remove(comment);
}

ManualPage ReadPage(const QString& path, const QString& content) {
    static const QRegularExpression heading(QStringLiteral("^# +(.*\\S)"),
                                            QRegularExpression::MultilineOption);
    const auto match = heading.match(content);
    return {path, match.hasMatch() ? match.captured(1) : QFileInfo(path).completeBaseName(), {}};
}

QStringList LinkedPages(const QString& content) {
    static const QRegularExpression link(QStringLiteral("\\]\\(([\\w-]+\\.md)"));
    QStringList names;
    auto links = link.globalMatch(content);
    while (links.hasNext()) names.append(links.next().captured(1));
    return names;
}

void PaintLinks(QTextDocument& text, const QColor& colour) {
    QTextCharFormat painted;
    painted.setForeground(colour);
    QTextCursor cursor(&text);
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        for (const auto& stretch : block.textFormats()) {
            if (!stretch.format.isAnchor()) continue;
            cursor.setPosition(block.position() + stretch.start);
            cursor.setPosition(cursor.position() + stretch.length, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(painted);
        }
    }
}

// The reader keeps the backslash of a "|" in the code of a table.
void DropEscapes(QTextDocument& text) {
    for (QTextCursor found(&text); !(found = text.find(QStringLiteral("\\|"), found)).isNull();) {
        found.setPosition(found.selectionStart());
        found.deleteChar();
    }
}

void SetOffCells(const QTextDocument& text) {
    for (QTextFrame* frame : text.rootFrame()->childFrames()) {
        auto* table = qobject_cast<QTextTable*>(frame);
        if (table == nullptr) continue;
        QTextTableFormat format = table->format();
        format.setCellSpacing(0);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorderBrush(QColor(0xA0, 0xA0, 0xA0));
        format.setCellPadding(CellPadding);
        table->setFormat(format);
    }
}

// Above a heading, where the reader leaves none behind lines of code.
void SetOffHeadings(const QTextDocument& text) {
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (format.headingLevel() == 0 || block.position() == 0) continue;
        format.setTopMargin(HeadingMargin);
        QTextCursor(block).setBlockFormat(format);
    }
}

// By which links name a heading: "Insert mode (F2)" is "insert-mode-f2".
QString AnchorOf(const QString& heading) {
    static const QRegularExpression dropped(QStringLiteral("[^\\w\\- ]"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return heading.toLower().remove(dropped).replace(QLatin1Char(' '), QLatin1Char('-'));
}

int PositionOf(const QTextDocument& text, const QString& anchor) {
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const bool heading = block.blockFormat().headingLevel() > 0;
        if (heading && AnchorOf(block.text()) == anchor) return block.position();
    }
    return -1;
}

}  // namespace

std::vector<ManualPage> ReadPages(const QString& directory) {
    const QDir dir(directory);
    const QString first = QStringLiteral("index.md");
    QStringList names{first};
    names += LinkedPages(ContentOf(dir.filePath(first)));
    names += dir.entryList({QStringLiteral("*.md")}, QDir::Files, QDir::Name);
    names.removeDuplicates();
    std::vector<ManualPage> pages;
    for (const QString& name : names) {
        const QString path = dir.filePath(name);
        if (dir.exists(name)) pages.push_back(ReadPage(path, ContentOf(path)));
    }
    return pages;
}

QTextDocument& TextOf(Manual& manual, int page) {
    ManualPage& shown = manual.pages[static_cast<std::size_t>(page)];
    if (shown.text) return *shown.text;
    // Read ahead of any layout: with one, the reader has the whole page laid out again after each
    // of its steps, which takes seconds where there is a long table.
    shown.text = std::make_unique<QTextDocument>();
    shown.text->setUndoRedoEnabled(false);
    shown.text->setDefaultFont(manual.font);
    shown.text->setDocumentMargin(Margin);
    shown.text->setBaseUrl(QUrl::fromLocalFile(shown.path));
    shown.text->setMarkdown(WithoutComments(ContentOf(shown.path)));
    DropEscapes(*shown.text);
    SetOffCells(*shown.text);
    SetOffHeadings(*shown.text);
    PaintLinks(*shown.text, manual.linkColour);
    return *shown.text;
}

void FitPictures(QTextDocument& text, int width) {
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        if (block.begin().atEnd()) continue;
        const QTextFragment first = block.begin().fragment();  // a picture is a block of its own
        QTextImageFormat picture = first.charFormat().toImageFormat();
        if (!picture.isValid()) continue;
        const QUrl place = text.baseUrl().resolved(QUrl(picture.name()));
        QImage image(place.toLocalFile());
        if (image.width() > width) image = image.scaledToWidth(width, Qt::SmoothTransformation);
        if (image.width() == picture.width()) continue;
        text.addResource(QTextDocument::ImageResource, place, image);
        picture.setWidth(image.width());
        picture.setHeight(image.height());
        QTextCursor cursor(&text);
        cursor.setPosition(first.position());
        cursor.setPosition(first.position() + first.length(), QTextCursor::KeepAnchor);
        cursor.setCharFormat(picture);
        text.markContentsDirty(0, text.characterCount());  // tables below it, too
    }
}

ManualPlace TargetOf(Manual& manual, int page, const QUrl& link) {
    const QString name = link.fileName();
    const auto found = std::find_if(
        manual.pages.begin(), manual.pages.end(),
        [&name](const ManualPage& other) { return QFileInfo(other.path).fileName() == name; });
    if (!name.isEmpty() && found == manual.pages.end()) return {-1, -1, 0};
    if (!name.isEmpty()) page = static_cast<int>(found - manual.pages.begin());
    if (!link.hasFragment()) return {page, 0, 0};
    return {page, PositionOf(TextOf(manual, page), link.fragment()), 0};
}

std::vector<ManualPlace> FindInManual(Manual& manual, const QString& wanted) {
    std::vector<ManualPlace> places;
    if (wanted.isEmpty()) return places;
    const int length = static_cast<int>(wanted.size());
    for (int page = 0; page < static_cast<int>(manual.pages.size()); ++page) {
        const QString text = TextOf(manual, page).toPlainText();
        qsizetype start = text.indexOf(wanted, 0, Qt::CaseInsensitive);
        for (; start >= 0; start = text.indexOf(wanted, start + length, Qt::CaseInsensitive)) {
            places.push_back({page, static_cast<int>(start), length});
        }
    }
    return places;
}

QString Surroundings(Manual& manual, const ManualPlace& place) {
    const QTextBlock block = TextOf(manual, place.page).findBlock(place.start);
    const QString text = block.text();
    const int start = place.start - block.position();
    qsizetype from = std::max(0, start - CharactersAhead);
    const qsizetype blank = text.indexOf(QLatin1Char(' '), from);
    if (from > 0 && blank < start) from = blank + 1;
    QString shown = text.mid(from, CharactersShown);
    if (from > 0) shown.prepend(QStringLiteral("... "));
    if (from + CharactersShown < text.size()) shown.append(QStringLiteral(" ..."));
    return shown;
}

}  // namespace tessaryn
