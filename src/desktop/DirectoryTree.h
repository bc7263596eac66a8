// The directories of the machine as a tree, in which the user goes from one to the next.
#pragma once

#include <QFileSystemModel>
#include <QTreeView>

#include "platform/Controls.h"

namespace tessaryn {

class DirectoryTree : public QTreeView {
  public:
    explicit DirectoryTree(DirectoryBox& box, QWidget* parent = nullptr);
    void Sync();  // goes where the logic has set it

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

  private:
    DirectoryBox& box_;
    QFileSystemModel model_;
    bool syncing_ = false;    // the logic moves it, not the user
    bool following_ = false;  // the user has not moved since it went there
};

}  // namespace tessaryn
