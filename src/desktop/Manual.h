// The pages of the manual: their order, their text for reading, and where something stands in it.
#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <QTextDocument>
#include <QUrl>
#include <memory>
#include <vector>

namespace tessaryn {

struct ManualPage {
    QString path;
    QString title;                        // its first heading
    std::unique_ptr<QTextDocument> text;  // nullptr until TextOf makes it
};

struct Manual {
    std::vector<ManualPage> pages;
    QFont font;  // of the texts, as is the next
    QColor linkColour;
};

// A stretch of a page. Positions are those of a QTextCursor.
struct ManualPlace {
    int page = 0;  // index of the page, 0-based; -1 for none
    int start = 0;
    int length = 0;
};

// The pages of a directory, in the order in which index.md links to them, itself first; then those
// that it does not name.
std::vector<ManualPage> ReadPages(const QString& directory);

// The text of a page, made when it is first asked for.
QTextDocument& TextOf(Manual& manual, int page);

// Gives the pictures of a text their size, or that width where they have more.
void FitPictures(QTextDocument& text, int width);

// Where a link on a page leads. Its page is -1 if the manual has no such page; start is -1 if the
// page has no such heading.
ManualPlace TargetOf(Manual& manual, int page, const QUrl& link);

// Each place where a text stands, in capital or small letters, in the order of the pages.
std::vector<ManualPlace> FindInManual(Manual& manual, const QString& wanted);

// The text of the paragraph or cell around a place, cut to what fits a list.
QString Surroundings(Manual& manual, const ManualPlace& place);

}  // namespace tessaryn
