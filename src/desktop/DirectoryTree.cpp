#include "desktop/DirectoryTree.h"

#include <QHeaderView>
#include <QScrollBar>

#include "desktop/Desktop.h"
#include "desktop/PaintedText.h"

namespace tessaryn {

DirectoryTree::DirectoryTree(DirectoryBox& box, QWidget* parent) : QTreeView(parent), box_(box) {
    model_.setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    model_.setRootPath(QDir::rootPath());
    setModel(&model_);
    for (int column = 1; column < model_.columnCount(); ++column) hideColumn(column);
    header()->hide();
    // The tree fills in and sorts itself by and by, in no order that could be told beforehand.
    // Until the user takes over, the directory stays in sight.
    const auto follow = [this] {
        if (following_) scrollTo(currentIndex(), PositionAtCenter);
    };
    connect(&model_, &QFileSystemModel::rowsInserted, this, follow, Qt::QueuedConnection);
    connect(&model_, &QFileSystemModel::rowsRemoved, this, follow, Qt::QueuedConnection);
    connect(&model_, &QFileSystemModel::layoutChanged, this, follow, Qt::QueuedConnection);
    connect(&model_, &QFileSystemModel::directoryLoaded, this, follow, Qt::QueuedConnection);
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this,
            [this] { following_ = false; });
    Sync();
}

void DirectoryTree::Sync() {
    const QModelIndex place = model_.index(ToQt(box_.Path));
    if (!place.isValid() || place == currentIndex()) return;
    syncing_ = following_ = true;
    setCurrentIndex(place);
    expand(place);
    scrollTo(place, PositionAtCenter);
    syncing_ = false;
}

void DirectoryTree::keyPressEvent(QKeyEvent* event) {
    following_ = false;
    QTreeView::keyPressEvent(event);
}

void DirectoryTree::mousePressEvent(QMouseEvent* event) {
    following_ = false;
    QTreeView::mousePressEvent(event);
}

void DirectoryTree::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (syncing_ || !current.isValid()) return;
    const std::string path = model_.filePath(current).toStdString();
    if (path == box_.Path) return;
    Dispatch([this, &path] {
        box_.Path = path;
        if (box_.Change) box_.Change();
    });
}

}  // namespace tessaryn
