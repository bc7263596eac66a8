// The status line and the plain one-line box.
#pragma once

#include <QLabel>
#include <QLineEdit>

#include "platform/RichTextBox.h"

namespace tessaryn {

// A rich-text surface that only tells something: a line of text that wraps where it is too long.
// TAB goes there, so that it can be heard again.
class StatusView : public QLabel {
  public:
    explicit StatusView(RichTextBox& box, QWidget* parent = nullptr);
    void Sync();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    RichTextBox& box_;
};

class LineBox : public QLineEdit {
  public:
    explicit LineBox(TextBox& box, QWidget* parent = nullptr);
    void Pull();  // takes over what the user has typed and selected
    void Sync();  // brings over what the logic has set

  private:
    TextBox& box_;
    int fontSize_ = 0;
};

}  // namespace tessaryn
