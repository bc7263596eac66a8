// The proof display as assistive tools read it: a document of text with a caret, where a line end
// is one character and each sign reads as it is painted. Offsets are those of a QString.
//
// Text is made from the surface when it is asked for, a few lines at a time.
#pragma once

#include <QAccessibleWidget>

#include "desktop/ProofDisplay.h"

namespace tessaryn {

class AccessibleProof : public QAccessibleWidget, public QAccessibleTextInterface {
  public:
    explicit AccessibleProof(ProofDisplay& display);

    // Lets assistive tools find the interface of any display. Once is enough.
    static void Install();

    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;
    // The text is all there is: no viewport, no scroll bars.
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    int characterCount() const override;
    QString text(int startOffset, int endOffset) const override;
    using QAccessibleWidget::text;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                         int* end) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                             int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType type, int* start,
                            int* end) const override;
    QString attributes(int offset, int* start, int* end) const override;

    int cursorPosition() const override;
    void setCursorPosition(int position) override;
    int selectionCount() const override;
    void selection(int index, int* start, int* end) const override;
    void setSelection(int index, int start, int end) override;
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;

    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;

  private:
    struct Range {
        int start;
        int end;
    };

    ProofDisplay& Display() const;
    int ByteAt(int offset) const;
    int UnitAt(int byte) const;
    Range LineAt(int offset) const;  // its end included
    Range Around(int offset, QAccessible::TextBoundaryType type) const;
    QString Give(const Range& range, int* start, int* end) const;
};

}  // namespace tessaryn
