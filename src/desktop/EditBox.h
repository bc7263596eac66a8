// An editing box: the toolkit's rich-text editor, kept in step with its surface both ways.
//
// Keys go to the logic first; what it leaves alone is edited here and then taken over into the
// surface. The logic has the undo, the context menu and the paste.
//
// Of a long text in a box of one line next to nothing is in sight, and to lay it all out takes the
// toolkit a second: the editor then holds its beginning alone, until the user may leave that.
#pragma once

#include <QTextEdit>
#include <vector>

#include "platform/RichTextBox.h"

namespace tessaryn {

class EditBox : public QTextEdit {
  public:
    explicit EditBox(RichTextBox& box, QWidget* parent = nullptr);

    // Takes text, formats and selection over into the surface, where the user has changed them.
    void Pull();
    // Brings over what the logic has changed in the surface.
    void Sync();

  protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    QMimeData* createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void LoadContent();  // from the editor into the surface
    void ShowContent();  // from the surface into the editor
    void Show(int end);  // the same up to a byte of the surface
    void ShowAll();      // for whatever may lead out of the beginning
    int EndOfBeginning() const;
    bool StaysInBeginning(const QKeyEvent& event) const;
    void Select(int startUnit, int endUnit);
    int UnitAt(int byte) const;
    void SendIfEdited();
    void MoveToCharacterAt(const QPoint& place);

    RichTextBox& box_;
    std::vector<int> bytes_{0};  // byte of the surface at each position of the document
    int tail_ = 0;               // bytes at the end of the surface that the editor does not hold
    int revision_ = -1;          // of the document that the surface agrees with
    std::uint64_t shown_ = 0;    // ContentRevision of the surface that the document agrees with
};

}  // namespace tessaryn
